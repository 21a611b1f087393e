#include "options/PilotTestWords.h"

#include <cmath>

#include "alarms/WatchText.h"
#include "platform/Angles.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::string Text(double value, const char* pattern) { return FormatNumber(ToSingle(value), pattern); }

std::string Meaning(FollowVerdict verdict) {
  switch (verdict) {
    case FollowVerdict::Unknown:
      return "too few headings came";
    case FollowVerdict::Follows:
      break;
    case FollowVerdict::Slow:
      return "the boat takes long, or does not come all the way";
    case FollowVerdict::DoesNotFollow:
      return "is the pilot in standby, or does it want another sentence?";
    case FollowVerdict::TurnsAway:
      return "the rudder sensor or the motor may be the wrong way round";
  }
  return "the pilot does what it is told";
}

}  // namespace

std::string PilotTestQuestion() {
  return "The pilot is sent a bearing 10 degrees to starboard, and after half a minute the present one "
         "again. It "
         "takes 90 seconds in all. Is there room, and does somebody keep a lookout?";
}

std::string PilotTestStage(PilotTest::Stage stage) {
  switch (stage) {
    case PilotTest::Stage::Listens:
      return "Listens to the heading for 10 seconds.";
    case PilotTest::Stage::Out:
      return "10 degrees to starboard are sent.";
    case PilotTest::Stage::Back:
      return "The bearing of before is sent again.";
    case PilotTest::Stage::Idle:
    case PilotTest::Stage::Done:
      break;
  }
  return {};
}

std::string PilotTestWords(const PilotTestResult& result) {
  std::string words = std::string(FollowText(result.Verdict)) + ": " + Meaning(result.Verdict) + ".";
  if (result.Verdict == FollowVerdict::Unknown) {
    return words;
  }
  if (result.Verdict == FollowVerdict::TurnsAway && result.Made == 0.0) {
    return words + "\nThe test was cut short, as she turned more than 15 degrees.";
  }
  const double made = std::round(result.Made);
  words +=
      "\nShe made " + Text(std::fabs(made), "0") + " of 10 degrees" + (made < 0.0 ? " the wrong way." : ".");
  if (result.Lag) {
    words += "\nLag: " + PilotTestLag(result) + " s until two thirds of the turn are made.";
    words += "\nRate of turn: up to " + Text(result.Rate, "0.0") + " degrees a second.";
  }
  const double offset = std::round(result.Offset);
  words += "\nOffset: ";
  if (offset == 0.0) {
    return words + "the pilot's compass shows the same.";
  }
  return words + "the pilot's compass shows " + Text(std::fabs(offset), "0") + " degrees " +
         (offset > 0.0 ? "more." : "less.");
}

std::string PilotTestLag(const PilotTestResult& result) {
  return result.Lag ? ShortestText(ToSingle(std::round(*result.Lag * 10.0) / 10.0)) : std::string();
}

std::string PilotTestAdvice(const PilotTestResult& result, TrackConditions conditions) {
  if (!result.Lag) {
    return {};
  }
  conditions.Lag = std::round(*result.Lag * 10.0) / 10.0;
  return TrackSuggestionFor(conditions).Reason;
}

}  // namespace veerwatch
