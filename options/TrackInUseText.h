// What the Tracking page says while the loop tracks.
#pragma once

#include <string>

#include "control/TrackLoop.h"

namespace veerwatch {

/// "In use: 20 s, 4. Press Track to use what you apply.", with the loop's bandwidth and damping in their
/// shortest form; behind the name of another method than Sentence, and without the damping for Direction.
std::string TrackInUseText(const TrackTuning& tuning);

}  // namespace veerwatch
