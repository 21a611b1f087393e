// RMB, the way to a point: 10 nautical miles ahead on the bearing.
#pragma once

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds RMB. The point has a range and a bearing, which is true, and no position.
///
///     $ECRMB,A,0.00,R,,1,,,,,10.0,252.0,,V,A*hh
///            1 2    3 4 5 6-9 10  11    12 13 14
///            | |    | | | |   |   |     |  |  mode, where it is wanted: autonomous, N not valid
///            | |    | | | |   |   |     |  not arrived
///            | |    | | | |   |   |     closing speed: not said
///            | |    | | | |   |   bearing to the destination, true
///            | |    | | | |   range, nautical miles
///            | |    | | | latitude, N or S, longitude, E or W of the destination: not said
///            | |    | | name of the destination
///            | |    | name of the origin: none
///            | cross-track error: none, steer right
///            status: valid, or V
///
/// Source: NMEA 0183, RMB.
void AddRmb(const PilotSentences::Parts& parts, PilotBundle& bundle);

}  // namespace veerwatch
