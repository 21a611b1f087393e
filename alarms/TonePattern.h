// What an alarm sounds like, as plain numbers: the notes of each level, when they are repeated, and their
// samples. No sound card is known here; platform/Sounder plays what comes out.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "alarms/AlarmCentre.h"

namespace veerwatch {

struct ToneNote {
  double Frequency = 0.0;  ///< [Hz], 0 for silence
  double Seconds = 0.0;    ///< [s]
};

struct TonePattern {
  std::vector<ToneNote> Notes;
  double Loudness = 1.0;    ///< of the highest sample [0, 1]
  std::int64_t Repeat = 0;  ///< from one beginning to the next [ms]
};

/// The pattern of a level: six high notes every two seconds for red, two middling ones every five for amber,
/// a low one every thirty for a note. One that rises is as loud as can be, and comes twice as often.
TonePattern PatternOf(Level level, bool rises);

/// The pattern at `rate` samples a second [1/s, above 0], one channel. Each note swells and fades within
/// milliseconds, so that nothing clicks.
std::vector<std::int16_t> ToneSamples(const TonePattern& pattern, int rate);

/// Says when a pattern begins.
class ToneSchedule {
 public:
  /// What begins at `steady` [ms of the steady clock] when `tone` is to be heard; nothing for silence, and
  /// while the pattern that has begun is not due again. Another level, or one that rises, begins at once.
  std::optional<TonePattern> Next(const AlarmTone& tone, std::int64_t steady);

 private:
  std::optional<Level> m_level;
  bool m_rises = false;
  std::int64_t m_begun = 0;
};

}  // namespace veerwatch
