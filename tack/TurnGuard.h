// Whether a turn may begin, and what the user has to be told before it begins. The manoeuvre dialog
// asks.
#pragma once

#include <optional>
#include <string>

#include "helm/HelmNow.h"

namespace veerwatch {

/// Why no sentence would carry a turn to the pilot now; "" when one will: Off, the input stopped, no wind, or
/// a port that is not open.
std::string TurnHindrance(const HelmNow& now);

/// What a turn starts from.
struct TurnFrom {
  float Heading = 0.0F;    ///< [deg magnetic]
  float AutoPilot = 0.0F;  ///< bearing of the pilot [deg magnetic]
  float WindAngle = 0.0F;  ///< [deg relative, positive to starboard]
};

/// What a turn would start from now; what is not known is as in `before`.
TurnFrom TurnFromNow(const HelmNow& now, const TurnFrom& before);

/// Whether any of the three has moved by more than 5 degrees, so that a turn planned before is out of date.
/// Deliberate: within that the turn starts from what it was planned with, however late OK comes.
bool TurnHasMoved(const TurnFrom& before, const TurnFrom& now);

/// Says that the boat swings, when her heading and the bearing of the pilot are more than 10 degrees apart;
/// else "".
std::string ApartText(const TurnFrom& from);

}  // namespace veerwatch
