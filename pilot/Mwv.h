// MWV, wind speed and angle: the apparent wind, for a pilot that holds the wind by itself.
#pragma once

#include <string_view>

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds MWV.
///
///     $ECMWV,321.8,R,12.4,N,A*hh
///            1     2 3    4 5
///            |     | |    | status: valid, or V
///            |     | speed, knots
///            |     relative: the apparent wind
///            angle from the bow over starboard [0, 360)
///
/// Source: NMEA 0183, MWV.
void AddMwv(std::string_view talker, const PilotValues::Apparent& wind, bool good, PilotBundle& bundle);

}  // namespace veerwatch
