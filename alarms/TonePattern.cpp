#include "alarms/TonePattern.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace veerwatch {

namespace {

constexpr double kUsualLoudness = 0.4;
constexpr double kEdge = 0.008;  // [s]
/// A timer of a second that comes a little early still finds the pattern due [ms].
constexpr std::int64_t kEarly = 200;

/// How loud a note of `count` samples is at sample `i` [0, 1].
double Swell(std::size_t i, std::size_t count, double edge) {
  const double fromStart = static_cast<double>(i) / edge;
  const double toEnd = static_cast<double>(count - 1 - i) / edge;
  return std::clamp(std::min(fromStart, toEnd), 0.0, 1.0);
}

}  // namespace

TonePattern PatternOf(Level level, bool rises) {
  TonePattern pattern;
  switch (level) {
    case Level::Red:
      for (int i = 0; i < 3; ++i) {
        pattern.Notes.insert(pattern.Notes.end(), {{880.0, 0.12}, {1175.0, 0.12}, {0.0, 0.08}});
      }
      pattern.Repeat = 2000;
      break;
    case Level::Amber:
      pattern.Notes = {{660.0, 0.18}, {0.0, 0.1}, {550.0, 0.25}};
      pattern.Repeat = 5000;
      break;
    case Level::Note:
      pattern.Notes = {{440.0, 0.3}};
      pattern.Repeat = 30000;
      break;
  }
  pattern.Loudness = rises ? 1.0 : kUsualLoudness;
  pattern.Repeat = rises ? pattern.Repeat / 2 : pattern.Repeat;
  return pattern;
}

std::vector<std::int16_t> ToneSamples(const TonePattern& pattern, int rate) {
  constexpr double kMost = std::numeric_limits<std::int16_t>::max();
  std::vector<std::int16_t> samples;
  for (const ToneNote& note : pattern.Notes) {
    const auto count = static_cast<std::size_t>(std::lround(note.Seconds * rate));
    const double turn = 2.0 * std::numbers::pi * note.Frequency / rate;
    for (std::size_t i = 0; i < count; ++i) {
      const double wave = std::sin(turn * static_cast<double>(i)) * Swell(i, count, kEdge * rate);
      samples.push_back(static_cast<std::int16_t>(std::lround(kMost * pattern.Loudness * wave)));
    }
  }
  return samples;
}

std::optional<TonePattern> ToneSchedule::Next(const AlarmTone& tone, std::int64_t steady) {
  if (!tone.Pattern) {
    m_level.reset();
    return std::nullopt;
  }
  const TonePattern pattern = PatternOf(*tone.Pattern, tone.Rises);
  const bool same = m_level == tone.Pattern && m_rises == tone.Rises;
  if (same && steady - m_begun < pattern.Repeat - kEarly) {
    return std::nullopt;
  }
  m_level = tone.Pattern;
  m_rises = tone.Rises;
  m_begun = steady;
  return pattern;
}

}  // namespace veerwatch
