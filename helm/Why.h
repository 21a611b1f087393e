// Why the last sentence for the pilot says what it says: what the instruments had said, and what the loop
// made of it. Kept by the helm when the sentence has left; the window, the command line and the tests show
// it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "control/TrackLoop.h"
#include "instruments/InstrumentRecord.h"
#include "platform/Clock.h"
#include "settings/TrackMode.h"

namespace veerwatch {

struct Why {
  bool Sent = false;  ///< false, with nothing else of any worth, before the first sentence
  Moment At;
  float Bearing = 0.0F;  ///< that was sent [deg magnetic, [0, 360)]
  TrackMode Mode = TrackMode::Off;
  TrackSide Side = TrackSide::Apparent;        ///< the tracked one
  TrackMethod Method = TrackMethod::Sentence;  ///< in use
  float Desired = 0.0F;                        ///< the held angle of that side [deg relative]
  LoopStep Step;                               ///< error, elapsed time, correction, limits
  InstrumentData Data;                         ///< the readings

  /// Where the values of kWhyValues came from, in that order; nothing for what never came.
  std::array<std::optional<Origin>, 4> From;
};

/// The values of Why::From.
inline constexpr std::array<RecordValue, 4> kWhyValues{RecordValue::WindApparent, RecordValue::WindTrue,
                                                       RecordValue::BoatSpeed, RecordValue::Heading};

/// One line: "245.0 by Clock: apparent 38.2 held 40.0, error -1.8, 1.0 s, correction -0.4, limited by Max
/// Rate; Apparent Wind 38.2 deg 12.4 kn MWV (WI) 0.0 s, ..."; "nothing was sent yet" before the first one.
std::string WhyText(const Why& why);

}  // namespace veerwatch
