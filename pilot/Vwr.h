// VWR, relative wind, for a pilot that holds the wind by itself.
#pragma once

#include <string_view>

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds VWR. It has no status: what does not hold is not said with it.
///
///     $ECVWR,038.2,R,12.4,N,6.4,M,23.0,K*hh
///            1     2 3    4 5   6 7    8
///            |     | |      |     speed, kilometres an hour
///            |     | |      speed, metres a second
///            |     | speed, knots
///            |     side that it blows from: R starboard, L port
///            angle off the bow [0, 180]
///
/// Source: NMEA 0183, VWR.
void AddVwr(std::string_view talker, const PilotValues::Apparent& wind, PilotBundle& bundle);

}  // namespace veerwatch
