// BWC, bearing and distance to a point: 10 nautical miles ahead on the bearing.
#pragma once

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds BWC. The point has bearings and a distance, and neither a position nor a time. Only the mode can say
/// that it does not hold.
///
///     $ECBWC,,,,,,252.0,T,245.0,M,10.0,N,1,A*hh
///            1 2-5 6    7 8     9 10  11 12 13
///            | |   |      |       |      |  mode, where it is wanted: autonomous, N not valid
///            | |   |      |       |      name of the destination
///            | |   |      |       distance, nautical miles
///            | |   |      bearing to the destination, magnetic
///            | |   bearing to the destination, true
///            | latitude, N or S, longitude, E or W of the destination: not said
///            time of the fix: not said
///
/// Source: NMEA 0183, BWC.
void AddBwc(const PilotSentences::Parts& parts, PilotBundle& bundle);

}  // namespace veerwatch
