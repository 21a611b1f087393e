#include "alarms/WatchText.h"

#include <cmath>

#include "platform/NumberText.h"
#include "platform/VisibleText.h"

namespace veerwatch {

namespace {

std::string Whole(double number) { return FormatNumber(static_cast<float>(number), "0"); }

std::string Name(const Talker& talker) { return VisibleText(std::string_view(talker.data(), talker.size())); }

std::string TwoSources(const char* what, const Standing& standing) {
  return std::string("2 ") + what + " Sources (" + Name(standing.Talkers[0]) + ", " +
         Name(standing.Talkers[1]) + ")";
}

/// What Act does about a condition; "" where it can do nothing.
std::string_view ActDoes(Condition what) {
  switch (what) {
    case Condition::NoWind:
      return "no step; the pilot keeps its last bearing";
    case Condition::NoBoatSpeed:
      return "holds the apparent wind angle of the last 10 s instead, until you choose the true one again";
    case Condition::WindNotChanging:
      return "the bearing stands still until the wind changes";
    case Condition::TwoWinds:
    case Condition::TwoHeadings:
    case Condition::TwoBoatSpeeds:
      return "goes by the source that came first";
    case Condition::PilotNotFollowing:
      return "bearing and accumulator stand still until the boat comes within 10 degrees of it";
    case Condition::GybeRisk:
      return "holds the boat 8 degrees higher until the wind is forward of 168 degrees";
    case Condition::PilotLost:
      return "adds nothing up; begins at the heading when the port is back";
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
      return "No Wind " + Whole(standing.Figure) + " s";
    case Condition::PilotLost:
      return "Pilot Lost - Output Port " + Whole(standing.Figure);
    case Condition::PilotNotFollowing:
      return "Pilot: " + std::string(FollowText(standing.Follow));
    case Condition::GybeRisk:
      return "Gybe Risk";
    case Condition::NoBoatSpeed:
      return "No Boat Speed";
    case Condition::WindNotChanging:
      return "Wind Not Changing";
    case Condition::OffCourse:
      return "Off Course " + Whole(standing.Figure);
    case Condition::Pinching:
      return "Pinching";
    case Condition::WindShift:
      return "Wind Shift " + Whole(std::fabs(standing.Figure)) + " deg to " +
             (standing.Figure < 0.0 ? "port" : "starboard") + (standing.Lift ? ": lift" : ": header");
    case Condition::NoHeading:
      return "No Heading";
    case Condition::TwoWinds:
      return TwoSources("Wind", standing);
    case Condition::TwoHeadings:
      return TwoSources("Heading", standing);
    case Condition::TwoBoatSpeeds:
      return TwoSources("Boat Speed", standing);
    case Condition::WindJumps:
      return "Wind Jumps";
    case Condition::ManyWinds:
      return Whole(standing.Figure) + " Winds a Second";
    case Condition::PilotLineFull:
      return "Pilot Line Full";
    case Condition::Simulation:
      return "Simulation";
  }
  return {};
}

std::string_view FollowText(FollowVerdict verdict) {
  switch (verdict) {
    case FollowVerdict::Unknown:
      break;
    case FollowVerdict::Follows:
      return "Follows";
    case FollowVerdict::Slow:
      return "Slow";
    case FollowVerdict::DoesNotFollow:
      return "Does not follow";
    case FollowVerdict::TurnsAway:
      return "Turns the wrong way";
  }
  return "Unknown";
}

std::string FollowLine(const WatchNow& watch) {
  std::string line = "Pilot: " + std::string(FollowText(watch.Follow));
  const double offset = std::round(watch.PilotOffset.value_or(0.0));
  const bool comes = watch.Follow == FollowVerdict::Follows || watch.Follow == FollowVerdict::Slow;
  if (comes && offset != 0.0) {
    line += std::string(", offset ") + (offset > 0.0 ? "+" : "") + Whole(offset);
  }
  return line;
}

std::string_view LevelText(Level level) {
  return level == Level::Red ? "red" : level == Level::Amber ? "amber" : "note";
}

std::string_view WatchedText(Watched what) {
  switch (what) {
    case Watched::WindApparent:
      return "Apparent Wind";
    case Watched::WindTrue:
      return "True Wind";
    case Watched::BoatSpeed:
      return "Boat Speed";
    case Watched::Heading:
      return "Heading";
    case Watched::Waypoint:
      return "Waypoint";
    case Watched::SpeedOverGround:
      return "Speed Over Ground";
    case Watched::Compass:
      return "Compass";
  }
  return {};
}

std::string ValueText(Watched what, const ValueAge& age) {
  std::string text(WatchedText(what));
  if (age.State == Freshness::Waiting) {
    return text + ": waiting";
  }
  if (age.State == Freshness::NotFitted) {
    return text + ": not fitted";
  }
  const std::string_view sentence(age.From.Sentence.data(), age.From.Sentence.size());
  if (sentence.front() == '\0' || sentence == "SIM") {
    return text + ": simulated";
  }
  constexpr double kMilliseconds = 1000.0;
  return text + " from " + VisibleText(sentence) + " (" + Name(age.From.Talker) + "), " +
         Whole(std::floor(static_cast<double>(age.Age) / kMilliseconds)) + " s old";
}

std::string WatchDoes(const Standing& standing, const WatchNow& watch) {
  const std::string does(ActDoes(standing.What));
  if (does.empty() || watch.Mode != TrackMode::Track) {
    return "Tells it";
  }
  if (watch.Act) {
    return "Act: " + does;
  }
  return "Tells it, and steers on. With Act: " + does;
}

std::string_view WatchRemedy(Condition what) {
  switch (what) {
    case Condition::NoWind:
      return "Take the helm; look at the wind instrument and its wire";
    case Condition::PilotLost:
      return "Take the helm; look at the pilot's port, its adapter and its wire";
    case Condition::PilotNotFollowing:
      return "Take the helm; is the pilot in standby, or does it hear another source?";
    case Condition::GybeRisk:
      return "Luff, or hold an angle further from dead astern";
    case Condition::NoBoatSpeed:
      return "Hold the apparent wind; clean the log's wheel, or choose the speed over ground";
    case Condition::WindNotChanging:
      return "Look at the masthead: the vane may be stuck; steer by hand until it moves";
    case Condition::OffCourse:
      return "Look why: a wind shift, a stalled pilot, too much sail, a limit that is too narrow";
    case Condition::Pinching:
      return "Bear away, or hold an angle further from the wind";
    case Condition::WindShift:
      return "Look whether the other tack, or another angle, leads better to where you go";
    case Condition::NoHeading:
      return "Look at the compass and its wire";
    case Condition::TwoWinds:
    case Condition::TwoHeadings:
    case Condition::TwoBoatSpeeds:
      return "Switch one of the two off, or leave it out at the multiplexer";
    case Condition::WindJumps:
      return "Look at the vane and its plug; steer by hand while it leaps";
    case Condition::ManyWinds:
      return "Options > Tracking: choose the method Clock or Direction, or a larger bandwidth";
    case Condition::PilotLineFull:
      return "Let the wind instrument send fewer sentences a second";
    case Condition::Simulation:
      return "Options > Simulate, for the real boat";
  }
  return {};
}

}  // namespace veerwatch
