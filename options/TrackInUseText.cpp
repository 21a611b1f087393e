#include "options/TrackInUseText.h"

#include "platform/NumberText.h"

namespace veerwatch {

std::string TrackInUseText(const TrackTuning& tuning) {
  return "In use: " + ShortestText(tuning.Bandwidth) + " s, " + ShortestText(tuning.Damping) +
         ". Press Track to use what you apply.";
}

}  // namespace veerwatch
