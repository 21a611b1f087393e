#include "options/PilotTestWords.h"

#include <cmath>

#include "alarms/WatchText.h"
#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

std::string Text(double value, const char* pattern) { return FormatNumber(ToSingle(value), pattern); }

std::string Meaning(FollowVerdict verdict) {
  switch (verdict) {
    case FollowVerdict::Unknown:
      return Tr("too few headings came");
    case FollowVerdict::Follows:
      break;
    case FollowVerdict::Slow:
      return Tr("the boat takes long, or does not come all the way");
    case FollowVerdict::DoesNotFollow:
      return Tr("is the pilot in standby, or does it want another sentence?");
    case FollowVerdict::TurnsAway:
      return Tr("the rudder sensor or the motor may be the wrong way round");
  }
  return Tr("the pilot does what it is told");
}

}  // namespace

std::string PilotTestQuestion() {
  return Tr(
      "The pilot is sent a bearing 10 degrees to starboard, and after half a minute the present one "
      "again. It "
      "takes 90 seconds in all. Is there room, and does somebody keep a lookout?");
}

std::string PilotTestStage(PilotTest::Stage stage) {
  switch (stage) {
    case PilotTest::Stage::Listens:
      return Tr("Listens to the heading for 10 seconds.");
    case PilotTest::Stage::Out:
      return Tr("10 degrees to starboard are sent.");
    case PilotTest::Stage::Back:
      return Tr("The bearing of before is sent again.");
    case PilotTest::Stage::Idle:
    case PilotTest::Stage::Done:
      break;
  }
  return {};
}

std::string PilotTestWords(const PilotTestResult& result) {
  std::string words = Filled("%1: %2.", {FollowText(result.Verdict), Meaning(result.Verdict)});
  if (result.Verdict == FollowVerdict::Unknown) {
    return words;
  }
  if (result.Verdict == FollowVerdict::TurnsAway && result.Made == 0.0) {
    return words + "\n" + Tr("The test was cut short, as she turned more than 15 degrees.");
  }
  const double made = std::round(result.Made);
  words += "\n" + Filled(made < 0.0 ? Tr("She made %1 of 10 degrees the wrong way.")
                                    : Tr("She made %1 of 10 degrees."),
                         {Text(std::fabs(made), "0")});
  if (result.Lag) {
    words += "\n" + Filled(Tr("Lag: %1 s until two thirds of the turn are made."), {PilotTestLag(result)});
    words += "\n" + Filled(Tr("Rate of turn: up to %1 degrees a second."), {Text(result.Rate, "0.0")});
  }
  const double offset = std::round(result.Offset);
  words += "\n";
  if (offset == 0.0) {
    return words + Tr("Offset: the pilot's compass shows the same.");
  }
  return words + Filled(offset > 0.0 ? Tr("Offset: the pilot's compass shows %1 degrees more.")
                                     : Tr("Offset: the pilot's compass shows %1 degrees less."),
                        {Text(std::fabs(offset), "0")});
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
