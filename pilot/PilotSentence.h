// The sentence that steers the autopilot.
#pragma once

#include <string>

namespace veerwatch {

/// Writes the autopilot sentence B for `bearing` [deg magnetic, [0, 360], finite] into `sentence`, without a
/// line end. Deliberate: a bearing from 359.95 on is written "360.0". The same bearing text, with at least
/// three digits and one decimal, stands in all three bearing fields.
///
///     $ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M*hh
///            1 2 3    4 5 6 7 8     9 10 11   12 13   14
///            | | |    | | | | |     | |  |       heading to steer, magnetic
///            | | |    | | | | |     | |  bearing from here to the destination, magnetic
///            | | |    | | | | |     | name of the destination
///            | | |    | | | | bearing from the origin to the destination, magnetic
///            | | |    | | | perpendicular not passed
///            | | |    | | arrival circle not entered
///            | | cross-track error: none, steer right, nautical miles
///            status and cycle lock: valid
///
/// Source: NMEA 0183, APB, with the talker EC.
void BuildPilotSentence(float bearing, std::string& sentence);

/// Checksum text of `sentence`, which begins with "$" and has no "*" yet: two upper-case hexadecimal digits.
std::string PilotChecksum(const std::string& sentence);

}  // namespace veerwatch
