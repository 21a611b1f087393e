// APB, autopilot sentence B: the bearing to steer with the status of the course.
#pragma once

#include "pilot/PilotSentences.h"

namespace veerwatch {

/// Adds APB. Deliberate: a bearing from 359.95 on is written "360.0". The same bearing text, with at least
/// three digits, stands in all three bearing fields.
///
///     $ECAPB,A,A,0.00,R,N,V,V,245.0,M,1,245.0,M,245.0,M,A*hh
///            1 2 3    4 5 6 7 8     9 10 11   12 13   14 15
///            | | |    | | | | |     | |  |       |       mode, where it is wanted: autonomous, N not valid
///            | | |    | | | | |     | |  |       heading to steer, magnetic, or T true
///            | | |    | | | | |     | |  bearing from here to the destination
///            | | |    | | | | |     | name of the destination
///            | | |    | | | | bearing from the origin to the destination
///            | | |    | | | perpendicular not passed
///            | | |    | | arrival circle not entered
///            | | cross-track error: none, steer right, nautical miles
///            status and cycle lock: valid, or V
///
/// Source: NMEA 0183, APB.
void AddApb(const PilotSentences::Parts& parts, PilotBundle& bundle);

}  // namespace veerwatch
