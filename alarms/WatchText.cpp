#include "alarms/WatchText.h"

#include <cmath>

#include "platform/Language.h"
#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

std::string Whole(double number) { return FormatNumber(static_cast<float>(number), "0"); }

std::string Name(const Talker& talker) { return VisibleText(std::string_view(talker.data(), talker.size())); }

/// `pattern` with its two sources.
std::string TwoSources(const std::string& pattern, const Standing& standing) {
  return Filled(pattern, {Name(standing.Talkers[0]), Name(standing.Talkers[1])});
}

std::string ShiftText(const Standing& standing) {
  const bool port = standing.Figure < 0.0;
  const std::string degrees = Whole(std::fabs(standing.Figure));
  if (standing.Lift) {
    return Filled(port ? Tr("Wind Shift %1 deg to port: lift") : Tr("Wind Shift %1 deg to starboard: lift"),
                  {degrees});
  }
  return Filled(port ? Tr("Wind Shift %1 deg to port: header") : Tr("Wind Shift %1 deg to starboard: header"),
                {degrees});
}

/// What Act does about a condition; "" where it can do nothing.
std::string ActDoes(Condition what) {
  switch (what) {
    case Condition::NoWind:
      return Tr("no step; the pilot keeps its last bearing");
    case Condition::NoBoatSpeed:
      return Tr(
          "holds the apparent wind angle of the last 10 s instead, until you choose the true one again");
    case Condition::WindNotChanging:
      return Tr("the bearing stands still until the wind changes");
    case Condition::TwoWinds:
    case Condition::TwoHeadings:
    case Condition::TwoBoatSpeeds:
      return Tr("goes by the source that came first");
    case Condition::PilotNotFollowing:
      return Tr("bearing and accumulator stand still until the boat comes within 10 degrees of it");
    case Condition::GybeRisk:
      return Tr("holds the boat 8 degrees higher until the wind is forward of 168 degrees");
    case Condition::PilotLost:
      return Tr("adds nothing up; begins at the heading when the port is back");
    case Condition::OffCourse:
    case Condition::Pinching:
    case Condition::WindShift:
    case Condition::NoHeading:
    case Condition::WindJumps:
    case Condition::ManyWinds:
    case Condition::PilotLineFull:
    case Condition::Simulation:
      break;
  }
  return {};
}

}  // namespace

std::string WatchText(const Standing& standing) {
  switch (standing.What) {
    case Condition::NoWind:
      return Filled(Tr("No Wind %1 s"), {Whole(standing.Figure)});
    case Condition::PilotLost:
      return Filled(Tr("Pilot Lost - Output Port %1"), {Whole(standing.Figure)});
    case Condition::PilotNotFollowing:
      return Filled(Tr("Pilot: %1"), {FollowText(standing.Follow)});
    case Condition::GybeRisk:
      return Tr("Gybe Risk");
    case Condition::NoBoatSpeed:
      return Tr("No Boat Speed");
    case Condition::WindNotChanging:
      return Tr("Wind Not Changing");
    case Condition::OffCourse:
      return Filled(Tr("Off Course %1"), {Whole(standing.Figure)});
    case Condition::Pinching:
      return Tr("Pinching");
    case Condition::WindShift:
      return ShiftText(standing);
    case Condition::NoHeading:
      return Tr("No Heading");
    case Condition::TwoWinds:
      return TwoSources(Tr("2 Wind Sources (%1, %2)"), standing);
    case Condition::TwoHeadings:
      return TwoSources(Tr("2 Heading Sources (%1, %2)"), standing);
    case Condition::TwoBoatSpeeds:
      return TwoSources(Tr("2 Boat Speed Sources (%1, %2)"), standing);
    case Condition::WindJumps:
      return Tr("Wind Jumps");
    case Condition::ManyWinds:
      return Filled(Tr("%1 Winds a Second"), {Whole(standing.Figure)});
    case Condition::PilotLineFull:
      return Tr("Pilot Line Full");
    case Condition::Simulation:
      return Tr("Simulation");
  }
  return {};
}

std::string FollowText(FollowVerdict verdict) {
  switch (verdict) {
    case FollowVerdict::Unknown:
      break;
    case FollowVerdict::Follows:
      return Tr("Follows");
    case FollowVerdict::Slow:
      return Tr("Slow");
    case FollowVerdict::DoesNotFollow:
      return Tr("Does not follow");
    case FollowVerdict::TurnsAway:
      return Tr("Turns the wrong way");
  }
  return Tr("Unknown");
}

std::string FollowLine(const WatchNow& watch) {
  const double offset = std::round(watch.PilotOffset.value_or(0.0));
  const bool comes = watch.Follow == FollowVerdict::Follows || watch.Follow == FollowVerdict::Slow;
  if (comes && offset != 0.0) {
    return Filled(Tr("Pilot: %1, offset %2"),
                  {FollowText(watch.Follow), (offset > 0.0 ? "+" : "") + Whole(offset)});
  }
  return Filled(Tr("Pilot: %1"), {FollowText(watch.Follow)});
}

std::string_view LevelText(Level level) {
  return level == Level::Red ? "red" : level == Level::Amber ? "amber" : "note";
}

std::string WatchedText(Watched what) {
  switch (what) {
    case Watched::WindApparent:
      return Tr("Apparent Wind");
    case Watched::WindTrue:
      return Tr("True Wind");
    case Watched::BoatSpeed:
      return Tr("Boat Speed");
    case Watched::Heading:
      return Tr("Heading");
    case Watched::Waypoint:
      return Tr("Waypoint");
    case Watched::SpeedOverGround:
      return Tr("Speed Over Ground");
    case Watched::Compass:
      return Tr("Compass");
  }
  return {};
}

std::string ValueText(Watched what, const ValueAge& age) {
  const std::string text = WatchedText(what);
  if (age.State == Freshness::Waiting) {
    return Filled(Tr("%1: waiting"), {text});
  }
  if (age.State == Freshness::NotFitted) {
    return Filled(Tr("%1: not fitted"), {text});
  }
  const std::string_view sentence(age.From.Sentence.data(), age.From.Sentence.size());
  if (sentence.front() == '\0' || sentence == "SIM") {
    return Filled(Tr("%1: simulated"), {text});
  }
  constexpr double kMilliseconds = 1000.0;
  return Filled(Tr("%1 from %2 (%3), %4 s old"),
                {text, VisibleText(sentence), Name(age.From.Talker),
                 Whole(std::floor(static_cast<double>(age.Age) / kMilliseconds))});
}

std::string WatchDoes(const Standing& standing, const WatchNow& watch) {
  const std::string does = ActDoes(standing.What);
  if (does.empty() || watch.Mode != TrackMode::Track) {
    return Tr("Tells it");
  }
  if (watch.Act) {
    return Filled(Tr("Act: %1"), {does});
  }
  return Filled(Tr("Tells it, and steers on. With Act: %1"), {does});
}

std::string WatchRemedy(Condition what) {
  switch (what) {
    case Condition::NoWind:
      return Tr("Take the helm; look at the wind instrument and its wire");
    case Condition::PilotLost:
      return Tr("Take the helm; look at the pilot's port, its adapter and its wire");
    case Condition::PilotNotFollowing:
      return Tr("Take the helm; is the pilot in standby, or does it hear another source?");
    case Condition::GybeRisk:
      return Tr("Luff, or hold an angle further from dead astern");
    case Condition::NoBoatSpeed:
      return Tr("Hold the apparent wind; clean the log's wheel, or choose the speed over ground");
    case Condition::WindNotChanging:
      return Tr("Look at the masthead: the vane may be stuck; steer by hand until it moves");
    case Condition::OffCourse:
      return Tr("Look why: a wind shift, a stalled pilot, too much sail, a limit that is too narrow");
    case Condition::Pinching:
      return Tr("Bear away, or hold an angle further from the wind");
    case Condition::WindShift:
      return Tr("Look whether the other tack, or another angle, leads better to where you go");
    case Condition::NoHeading:
      return Tr("Look at the compass and its wire");
    case Condition::TwoWinds:
    case Condition::TwoHeadings:
    case Condition::TwoBoatSpeeds:
      return Tr("Switch one of the two off, or leave it out at the multiplexer");
    case Condition::WindJumps:
      return Tr("Look at the vane and its plug; steer by hand while it leaps");
    case Condition::ManyWinds:
      return Tr("Options > Tracking: choose the method Clock or Direction, or a larger bandwidth");
    case Condition::PilotLineFull:
      return Tr("Let the wind instrument send fewer sentences a second");
    case Condition::Simulation:
      return Tr("Options > Simulate, for the real boat");
  }
  return {};
}

}  // namespace veerwatch
