// HSC, heading steering command.
#pragma once

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds HSC. It has no status: what does not hold is not said with it.
///
///     $ECHSC,252.0,T,245.0,M*hh
///            1     2 3     4
///            |       heading to steer, magnetic
///            heading to steer, true
///
/// Source: NMEA 0183, HSC.
void AddHsc(const PilotSentences::Parts& parts, PilotBundle& bundle);

}  // namespace veerwatch
