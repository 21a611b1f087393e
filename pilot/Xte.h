// XTE, cross-track error: that there is none.
#pragma once

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds XTE.
///
///     $ECXTE,A,A,0.00,R,N,A*hh
///            1 2 3    4 5 6
///            | | |    | | mode, where it is wanted: autonomous, N not valid
///            | | cross-track error: none, steer right, nautical miles
///            status and cycle lock: valid, or V
///
/// Source: NMEA 0183, XTE.
void AddXte(const PilotSentences::Parts& parts, PilotBundle& bundle);

}  // namespace veerwatch
