#include "history/TraceSettings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>

namespace veerwatch {

namespace {

constexpr std::size_t kColourDigits = 6;

std::optional<std::uint32_t> ColourOf(std::string_view text) {
  if (text.size() != kColourDigits + 1 || text.front() != '#') {
    return std::nullopt;
  }
  std::uint32_t colour = 0;
  const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), colour, 16);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(colour) : std::nullopt;
}

std::string TextOf(const std::optional<std::uint32_t>& colour) {
  if (!colour) {
    return "Default";
  }
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(*colour & 0xFFFFFFU));
  return text.data();
}

std::string ScaleKey(std::size_t scale, const char* what) {
  return "Scale " + std::to_string(scale + 1) + " " + what;
}

}  // namespace

bool ScaleFits(float low, float high) { return low >= kLeastEdge && high <= kMostEdge && low < high; }

void TraceSettingsRead(const Profile& profile, std::string_view name,
                       const std::vector<StripChartData::Trace>& traces, TraceSettings& settings) {
  for (std::size_t i = 0; i < std::min(traces.size(), settings.Traces.size()); ++i) {
    TraceChoice& choice = settings.Traces[i];
    profile.ProfileGet(name, traces[i].Name + " Shown", choice.Shown);
    if (const auto colour = ColourOf(profile.Text(name, traces[i].Name + " Colour"))) {
      choice.Colour = colour;
    }
  }
  float span = 0.0F;
  profile.ProfileGet(name, "Span", span);
  const auto* const known = std::find_if(std::begin(kSpans), std::end(kSpans),
                                         [span](int seconds) { return static_cast<float>(seconds) == span; });
  if (known != std::end(kSpans)) {
    settings.Span = *known;
  }
  for (std::size_t i = 0; i < settings.Scales.size(); ++i) {
    ScaleChoice& scale = settings.Scales[i];
    profile.ProfileGet(name, ScaleKey(i, "Automatic"), scale.Automatic);
    float low = scale.Low;
    float high = scale.High;
    profile.ProfileGet(name, ScaleKey(i, "Low"), low);
    profile.ProfileGet(name, ScaleKey(i, "High"), high);
    if (ScaleFits(low, high)) {
      scale.Low = low;
      scale.High = high;
    }
  }
}

void TraceSettingsWrite(Profile& profile, std::string_view name,
                        const std::vector<StripChartData::Trace>& traces, const TraceSettings& settings) {
  for (std::size_t i = 0; i < std::min(traces.size(), settings.Traces.size()); ++i) {
    profile.ProfileSet(name, traces[i].Name + " Shown", settings.Traces[i].Shown);
    profile.ProfileSet(name, traces[i].Name + " Colour", TextOf(settings.Traces[i].Colour));
  }
  profile.ProfileSet(name, "Span", static_cast<float>(settings.Span));
  for (std::size_t i = 0; i < settings.Scales.size(); ++i) {
    const ScaleChoice& scale = settings.Scales[i];
    profile.ProfileSet(name, ScaleKey(i, "Automatic"), scale.Automatic);
    profile.ProfileSet(name, ScaleKey(i, "Low"), scale.Low);
    profile.ProfileSet(name, ScaleKey(i, "High"), scale.High);
  }
}

}  // namespace veerwatch
