#include "options/TrackInUseText.h"

#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

std::string TrackInUseText(const TrackTuning& tuning) {
  std::string text;
  switch (tuning.Method) {
    case TrackMethod::Sentence:
      break;
    case TrackMethod::Clock:
      text += Tr("Clock") + ", ";
      break;
    case TrackMethod::Direction:
      text += Tr("Direction") + ", ";
      break;
  }
  text += ShortestText(tuning.Bandwidth) + " s";
  if (tuning.Method != TrackMethod::Direction) {
    text += ", " + ShortestText(tuning.Damping);
  }
  return Filled(Tr("In use: %1. Press Track to use what you apply."), {text});
}

}  // namespace veerwatch
