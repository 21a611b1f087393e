#include "history/TraceSettings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <string>
#include <utility>

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

/// The seconds of a span, where they are one of kSpans.
std::optional<float> KnownSpan(float span) {
  const bool known = std::any_of(std::begin(kSpans), std::end(kSpans),
                                 [span](int seconds) { return static_cast<float>(seconds) == span; });
  return known ? std::optional(span) : std::nullopt;
}

constexpr NumberRule kSpanRule{"one of kSpans", KnownSpan};
constexpr NumberRule kEdgeRule{"-9999 to 9999, Low below High",
                               [](float edge) { return std::optional(edge); }};

constexpr const char* kPopUp = "history plot > settings";

/// "#RRGGBB", or "Default".
SettingValue<TraceChoice> ColourValue() {
  SettingValue<TraceChoice> value;
  value.Range = "#RRGGBB, Default";
  value.Read = [](const Profile& profile, std::string_view section, std::string_view key,
                  TraceChoice& choice) {
    if (const auto colour = ColourOf(profile.Text(section, key))) {
      choice.Colour = colour;
    }
  };
  value.Write = [](Profile& profile, std::string_view section, std::string_view key,
                   const TraceChoice& choice) { profile.ProfileSet(section, key, TextOf(choice.Colour)); };
  return value;
}

}  // namespace

SettingTable<TraceChoice> TraceChoiceTable(const std::string& section, const std::string& trace) {
  return {{section, trace + " Shown", setting::Truth(&TraceChoice::Shown), "", "whether the trace is drawn",
           kPopUp},
          {section, trace + " Colour", ColourValue(), "", "its colour; Default for the chart's own", kPopUp}};
}

SettingTable<TraceSettings> SpanTable(const std::string& section) {
  SettingValue<TraceSettings> span = setting::Number(&TraceSettings::Span, kSpanRule);
  span.Range.clear();
  for (const int seconds : kSpans) {
    span.Range.append(span.Range.empty() ? "" : ", ").append(std::to_string(seconds));
  }
  return {{section, "Span", std::move(span), "s", "visible time", kPopUp},
          {section, "Marks", setting::Truth(&TraceSettings::Marks), "",
           "turns, and the angle that Track holds, stand on the chart", kPopUp}};
}

SettingTable<ScaleChoice> ScaleChoiceTable(const std::string& section, std::size_t number) {
  const std::string scale = "Scale " + std::to_string(number);
  return {{section, scale + " Automatic", setting::Truth(&ScaleChoice::Automatic), "",
           "whether the scale follows its values", kPopUp},
          {section, scale + " Low", setting::Number(&ScaleChoice::Low, kEdgeRule), "",
           "lower edge of the fixed scale", kPopUp},
          {section, scale + " High", setting::Number(&ScaleChoice::High, kEdgeRule), "", "its upper edge",
           kPopUp}};
}

std::vector<ScaleChoice> DefaultScales(const std::vector<TraceGroup>& groups, std::size_t count) {
  std::vector<ScaleChoice> scales(count);
  for (const TraceGroup& group : groups) {
    ScaleChoice& scale = scales[static_cast<std::size_t>(group.Scale)];
    if (group.Kind == ScaleKind::Relative) {
      scale = {true, -180.0F, 180.0F};
    } else if (group.Kind == ScaleKind::Compass) {
      scale = {true, 0.0F, 360.0F};
    }
  }
  return scales;
}

bool ScaleFits(float low, float high) { return low >= kLeastEdge && high <= kMostEdge && low < high; }

void TraceSettingsRead(const Profile& profile, const std::string& section,
                       const std::vector<StripChartData::Trace>& traces, TraceSettings& settings) {
  for (std::size_t i = 0; i < std::min(traces.size(), settings.Traces.size()); ++i) {
    SettingsRead(TraceChoiceTable(section, traces[i].Name), profile, settings.Traces[i]);
  }
  SettingsRead(SpanTable(section), profile, settings);
  for (std::size_t i = 0; i < settings.Scales.size(); ++i) {
    ScaleChoice& scale = settings.Scales[i];
    const ScaleChoice before = scale;
    SettingsRead(ScaleChoiceTable(section, i + 1), profile, scale);
    // An edge alone says nothing.
    if (!ScaleFits(scale.Low, scale.High)) {
      scale.Low = before.Low;
      scale.High = before.High;
    }
  }
}

void TraceSettingsWrite(Profile& profile, const std::string& section,
                        const std::vector<StripChartData::Trace>& traces, const TraceSettings& settings) {
  for (std::size_t i = 0; i < std::min(traces.size(), settings.Traces.size()); ++i) {
    SettingsWrite(TraceChoiceTable(section, traces[i].Name), profile, settings.Traces[i]);
  }
  SettingsWrite(SpanTable(section), profile, settings);
  for (std::size_t i = 0; i < settings.Scales.size(); ++i) {
    SettingsWrite(ScaleChoiceTable(section, i + 1), profile, settings.Scales[i]);
  }
}

}  // namespace veerwatch
