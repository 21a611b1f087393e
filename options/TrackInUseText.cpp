#include "options/TrackInUseText.h"

#include "platform/NumberText.h"

namespace veerwatch {

std::string TrackInUseText(const TrackTuning& tuning) {
  std::string text = "In use: ";
  switch (tuning.Method) {
    case TrackMethod::Sentence:
      break;
    case TrackMethod::Clock:
      text += "Clock, ";
      break;
    case TrackMethod::Direction:
      text += "Direction, ";
      break;
  }
  text += ShortestText(tuning.Bandwidth) + " s";
  if (tuning.Method != TrackMethod::Direction) {
    text += ", " + ShortestText(tuning.Damping);
  }
  return text + ". Press Track to use what you apply.";
}

}  // namespace veerwatch
