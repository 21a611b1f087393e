#include "control/Watch.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "control/TrackAdvice.h"
#include "instruments/MathLib.h"
#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr int kComputed = 1;                  // of m_iNmeaTrueWind
constexpr double kMilliseconds = 1000.0;      // [ms/s]
constexpr std::int64_t kStoodStill = 3000;    // [ms]; ticks come each second
constexpr std::int64_t kHeadingHolds = 4000;  // [ms]
constexpr float kMoves = 2.0F;                // [kn]

std::optional<float> ValueOf(const Readings& readings, Quantity what) {
  const Reading* reading = readings.Find(what);
  return reading != nullptr ? std::optional(reading->Value) : std::nullopt;
}

}  // namespace

void Watch::Restart() {
  m_ages.Restart();
  m_unchanged = {};
  m_jumps = {};
  m_directionAt.reset();
  m_winds = {};
  m_headings = {};
  m_boatSpeeds = {};
  m_follow = {};
  m_output.Forget();
  m_trueMean.Clear();
  m_meanAt.reset();
  m_latest.reset();
  m_crossed.reset();
  m_gybe = false;
}

void Watch::StandstillUntil(const Moment& now) {
  const std::int64_t before = m_latest.value_or(now.Steady);
  m_latest = now.Steady;
  if (now.Steady - before > kStoodStill) {
    m_ages.StoodStill(now.Steady - before);
    m_follow.Pause();
    m_output.Forget();
  }
}

void Watch::Sentence(const Readings& readings) {
  StandstillUntil(readings.From().At);
  BoatCame(readings);
  if (readings.Invalid()) {
    return;
  }
  if (readings.Find(Quantity::ApparentWindAngle) != nullptr) {
    WindCame(readings, true);
  } else if (readings.Find(Quantity::TrueWindSpeed) != nullptr) {
    WindCame(readings, false);
  }
}

void Watch::WindCame(const Readings& readings, bool apparent) {
  const Origin& from = readings.From();
  const bool computed = apparent && m_settings.m_iNmeaTrueWind == kComputed;
  const bool bringsTrue = m_record.Changed(RecordValue::WindTrue);
  if (m_record.Changed(RecordValue::WindApparent)) {
    m_ages.Came(Watched::WindApparent, from);
  }
  if (bringsTrue) {
    m_ages.Came(Watched::WindTrue, from);
    const InstrumentRecord::Wind wind = m_record.WindTrueUnsmoothed();
    m_trueMean.Add(static_cast<double>(wind.Angle), static_cast<double>(wind.Speed), from.At.Steady);
  }
  // The checks of the vane itself go by what is tracked, or what that is computed from.
  const bool tracked = m_now.Side == TrackSide::Apparent || computed ? apparent : bringsTrue;
  if (!tracked) {
    return;
  }
  const auto angle = ValueOf(readings, apparent ? Quantity::ApparentWindAngle : Quantity::TrueWindAngle);
  const auto speed = ValueOf(readings, apparent ? Quantity::ApparentWindSpeed : Quantity::TrueWindSpeed);
  if (!angle || !speed) {
    return;
  }
  m_winds.Add(from.Talker, {angle, speed}, from.At.Steady);
  if (m_winds.IsFirst(from.Talker, from.At.Steady)) {
    m_unchanged.Add(*angle, *speed, from.At.Steady);
    AddDirection(*angle, *speed, apparent, from.At);
  }
}

// The direction is that of the true wind: in a sea the apparent one swings by more, far aft by anything. It
// is worked out once a second, and where the vane itself has turned far.
void Watch::AddDirection(float angle, float speed, bool apparent, const Moment& now) {
  constexpr float kFar = 20.0F;           // [deg]
  constexpr std::int64_t kSecond = 1000;  // [ms]
  const bool far = std::fabs(FoldRelative(static_cast<double>(angle - m_vane))) > kFar;
  m_vane = angle;
  if (!far && !m_jumps.Away() && m_directionAt && now.Steady - *m_directionAt < kSecond) {
    return;
  }
  m_directionAt = now.Steady;
  const InstrumentData& data = m_record.Data();
  if (apparent && data.BoatSpeedValid) {
    const float fromBow = angle;
    WindTrueFromApparent(speed, fromBow, data.BoatSpeed, speed, angle);
  }
  const bool heading = m_ages.Within(Watched::Heading, kHeadingHolds, now);
  m_jumps.Add(static_cast<double>(angle) + (heading ? static_cast<double>(data.Heading) : 0.0), now.Steady);
}

// The compass, where one comes: it shows what the pilot makes of a bearing in any current.
void Watch::HeadingCame(bool compass, const Moment& now) {
  if (compass) {
    m_follow.Heading(m_compass);
  } else if (m_record.Changed(RecordValue::Heading) && !m_ages.At(Watched::Compass, now).Fresh()) {
    m_follow.Heading(m_record.Data().Heading);
  }
}

void Watch::BoatCame(const Readings& readings) {
  const Origin& from = readings.From();
  const std::int64_t now = from.At.Steady;
  if (m_record.Changed(RecordValue::Heading)) {
    m_ages.Came(Watched::Heading, from);
  }
  if (m_record.Changed(RecordValue::BoatSpeed)) {
    m_ages.Came(Watched::BoatSpeed, from);
  }
  if (m_record.Changed(RecordValue::Waypoint)) {
    m_ages.Came(Watched::Waypoint, from);
  }
  if (const auto speed = ValueOf(readings, Quantity::SpeedOverGround); speed && !readings.Invalid()) {
    m_ages.Came(Watched::SpeedOverGround, from);
    m_groundSpeed = *speed;
  }
  if (const auto speed = ValueOf(readings, Quantity::SpeedThroughWater)) {
    m_boatSpeeds.Add(from.Talker, {std::nullopt, speed}, now);
  }
  bool compass = false;
  if (ValueOf(readings, Quantity::HeadingTrue) && m_record.Changed(RecordValue::Heading)) {
    m_ages.Came(Watched::Compass, from);
    m_compass = m_record.Data().Heading;
    compass = true;
  }
  if (const auto heading = ValueOf(readings, Quantity::Heading)) {
    m_headings.Add(from.Talker, {heading, std::nullopt}, now);
    if (m_headings.IsFirst(from.Talker, now)) {
      m_ages.Came(Watched::Compass, from);
      m_compass = *heading;
      compass = true;
    }
  }
  HeadingCame(compass, from.At);
}

void Watch::Built(std::size_t bytes, const Moment& now) {
  m_output.Built(bytes, now.Steady);
  m_follow.Sent(m_settings.m_fAutoPilot);
}

void Watch::Step(const LoopStep& step) {
  if (step.Rings == LoopStep::Alarm::Raised) {
    m_offCourse = step.AlarmError;
  } else if (step.Rings == LoopStep::Alarm::Over) {
    m_offCourse.reset();
  }
}

void Watch::Simulated(const Moment& now) {
  StandstillUntil(now);
  AddTrueWind(now);
  if (m_settings.SimulatesBoat()) {
    m_follow.Heading(m_record.Data().Heading);
  }
}

void Watch::AddTrueWind(const Moment& now) {
  // The mean needs no more, and its ring holds no more than ten seconds of these.
  constexpr std::int64_t kSpacing = 200;  // [ms]
  if (m_meanAt && now.Steady - *m_meanAt < kSpacing) {
    return;
  }
  m_meanAt = now.Steady;
  const InstrumentData& data = m_record.Data();
  m_trueMean.Add(static_cast<double>(data.WindAngleTrue), static_cast<double>(data.WindSpeedTrue),
                 now.Steady);
}

std::optional<double> Watch::LatestAngle() const {
  if (const auto mean = m_trueMean.Mean()) {
    return mean;
  }
  const InstrumentData& data = m_record.Data();
  return data.WindApparentValid ? std::optional(static_cast<double>(data.WindAngleApparent)) : std::nullopt;
}

bool Watch::SpeedStuck(const Moment& now) const {
  const InstrumentData& data = m_record.Data();
  return data.BoatSpeedValid && data.BoatSpeed == 0.0F && m_groundSpeed > kMoves &&
         m_ages.At(Watched::SpeedOverGround, now).Fresh();
}

bool Watch::Sends() const { return m_settings.m_eTrackMode == TrackMode::Manual || Tracks(); }

bool Watch::Look(const Around& around, const Moment& now) {
  StandstillUntil(now);
  LookAtPilot(around, now);
  LookAtStern(around, now);
  Findings found{};
  if (around.InputStarted) {
    LookAtValues(around, now, found);
    LookAtSteering(around, found);
    LookAtSources(now, found);
  }
  m_now.At = now;
  m_now.Mode = m_settings.m_eTrackMode;
  m_now.Side = around.Side;
  m_now.Act = m_settings.m_bWatchAct;
  m_now.Acts = around.Acts;
  m_now.Follow = m_follow.Verdict();
  m_now.PilotOffset = m_follow.Offset();
  for (std::size_t what = 0; what < kWatchedCount; ++what) {
    m_now.Values[what] = m_ages.At(static_cast<Watched>(what), now);
  }
  AgeComputedWind();
  return Keep(found, now);
}

// A true wind that follows from the boat speed is as old as the older of both.
void Watch::AgeComputedWind() {
  ValueAge& wind = m_now.Values[static_cast<std::size_t>(Watched::WindTrue)];
  const ValueAge& speed = m_now.Of(Watched::BoatSpeed);
  if (m_settings.m_iNmeaTrueWind == kComputed && wind.Fresh() && speed.Gone()) {
    wind.State = speed.State;
    wind.Age = speed.Age;
  }
}

void Watch::LookAtPilot(const Around& around, const Moment& now) {
  if (!Sends() || m_settings.SimulatesSteady()) {
    m_follow.Pause();
    m_output.Forget();
    return;
  }
  if (m_settings.m_bSimulate) {
    m_output.Forget();
  } else {
    m_output.Look(around.OutputOpen, around.Sent, around.BaudRate, now.Steady);
  }
  const bool compass = m_ages.At(Watched::Compass, now).Fresh();
  const bool takesBearing = m_settings.m_ePilotProfile != PilotProfile::Wind;
  if (!takesBearing || m_output.Lost() || (!compass && !m_ages.At(Watched::Heading, now).Fresh())) {
    m_follow.Pause();
    return;
  }
  m_follow.Look(now.Steady);
}

void Watch::LookAtStern(const Around& around, const Moment& now) {
  constexpr double kBeyond = 172.0;            // [deg]
  constexpr double kOver = 168.0;              // [deg]
  constexpr double kAft = 90.0;                // [deg]
  constexpr std::int64_t kStaysAcross = 2000;  // [ms]
  const auto mean = m_trueMean.Mean();
  if (!Tracks() || !mean || !m_ages.At(Watched::WindTrue, now).Fresh()) {
    m_gybe = false;
    m_crossed.reset();
    return;
  }
  const auto wind = static_cast<double>(m_record.Data().WindAngleTrue);
  const double held = static_cast<double>(m_settings.DesiredAngle[static_cast<std::size_t>(around.Side)]);
  const bool across = std::fabs(wind) > kAft && std::fabs(held) > kAft && (wind < 0.0) != (held < 0.0);
  if (!across) {
    m_crossed.reset();
  } else if (!m_crossed) {
    m_crossed = now.Steady;
  }
  const bool stays = m_crossed && now.Steady - *m_crossed >= kStaysAcross;
  m_gybe = stays || std::fabs(*mean) > (m_gybe ? kOver : kBeyond);
}

void Watch::LookAtValues(const Around& around, const Moment& now, Findings& found) const {
  const auto at = [&found](Condition what) -> Finding& { return found[static_cast<std::size_t>(what)]; };
  const bool trueHeld = around.Side == TrackSide::True;
  const Watched held = trueHeld ? Watched::WindTrue : Watched::WindApparent;
  if (const ValueAge wind = m_ages.At(held, now); Sends() && wind.Gone()) {
    at(Condition::NoWind) = {true, Tracks() ? Level::Red : Level::Amber, held,
                             std::floor(static_cast<double>(wind.Age) / kMilliseconds)};
  }
  if (Tracks() && trueHeld && m_settings.m_iNmeaTrueWind == kComputed &&
      (m_ages.At(Watched::BoatSpeed, now).Gone() || SpeedStuck(now))) {
    at(Condition::NoBoatSpeed) = {true, Level::Red, Watched::BoatSpeed};
  }
  if (Tracks() && m_ages.At(Watched::Heading, now).Gone()) {
    at(Condition::NoHeading) = {true, Level::Amber, Watched::Heading};
  }
}

void Watch::LookAtSteering(const Around& around, Findings& found) const {
  const auto at = [&found](Condition what) -> Finding& { return found[static_cast<std::size_t>(what)]; };
  if (m_output.Lost()) {
    at(Condition::PilotLost) = {true, Level::Red, Watched::Heading,
                                static_cast<double>(m_settings.m_iPilotPort)};
  }
  if (m_follow.Fails()) {
    Finding& pilot = at(Condition::PilotNotFollowing);
    pilot = {true, Level::Red, Watched::Heading};
    pilot.Follow = m_follow.Verdict();
  }
  if (m_gybe || around.Gybing) {
    at(Condition::GybeRisk) = {true, Level::Red, Watched::WindTrue};
  }
  if (Tracks() && m_offCourse) {
    at(Condition::OffCourse) = {true, Level::Amber,
                                around.Side == TrackSide::True ? Watched::WindTrue : Watched::WindApparent,
                                static_cast<double>(std::fabs(*m_offCourse))};
  }
  if (around.Pinching) {
    at(Condition::Pinching) = {true, Level::Amber, Watched::WindApparent};
  }
  if (around.Shift) {
    at(Condition::WindShift) = {true, Level::Amber, Watched::WindTrue, *around.Shift, {}, around.Lifts};
  }
  if (Tracks() && TrackSwings(around.Method, static_cast<double>(around.Bandwidth), around.Winds)) {
    at(Condition::ManyWinds) = {true, Level::Note, Watched::WindApparent, *around.Winds};
  }
  if (m_output.Full()) {
    at(Condition::PilotLineFull) = {true, Level::Note};
  }
  if (m_settings.m_bSimulate) {
    at(Condition::Simulation) = {true, Level::Note};
  }
}

void Watch::LookAtSources(const Moment& now, Findings& found) const {
  if (m_settings.m_bSimulate) {
    return;
  }
  const auto at = [&found](Condition what) -> Finding& { return found[static_cast<std::size_t>(what)]; };
  const Watched wind = m_now.Side == TrackSide::True && m_settings.m_iNmeaTrueWind != kComputed
                           ? Watched::WindTrue
                           : Watched::WindApparent;
  if (m_unchanged.Stands() && m_ages.At(wind, now).Fresh()) {
    at(Condition::WindNotChanging) = {true, Level::Amber, wind};
  }
  if (m_jumps.Stands(now.Steady)) {
    at(Condition::WindJumps) = {true, Level::Amber, wind};
  }
  if (m_winds.Stands(now.Steady)) {
    at(Condition::TwoWinds) = {true, Level::Amber, wind, 0.0, m_winds.Talkers()};
  }
  if (m_headings.Stands(now.Steady)) {
    at(Condition::TwoHeadings) = {true, Level::Amber, Watched::Heading, 0.0, m_headings.Talkers()};
  }
  if (m_boatSpeeds.Stands(now.Steady)) {
    at(Condition::TwoBoatSpeeds) = {true, Level::Amber, Watched::BoatSpeed, 0.0, m_boatSpeeds.Talkers()};
  }
}

bool Watch::Keep(const Findings& found, const Moment& now) {
  const WatchNow before = m_now;
  m_now.Count = 0;
  bool changed = false;
  for (std::size_t i = 0; i < kConditionCount; ++i) {
    const auto what = static_cast<Condition>(i);
    const Standing* const stood = before.Find(what);
    changed = changed || found[i].Stands != (stood != nullptr) || (stood && stood->Rank != found[i].Rank);
    if (found[i].Stands) {
      m_now.All[m_now.Count++] = {what,           found[i].Rank,   stood ? stood->Since : now,
                                  found[i].Value, found[i].Figure, found[i].Talkers,
                                  found[i].Lift,  found[i].Follow};
    }
  }
  std::sort(m_now.All.begin(), m_now.All.begin() + static_cast<std::ptrdiff_t>(m_now.Count),
            [](const Standing& a, const Standing& b) {
              return std::tuple(a.Rank, -a.Since.Steady, a.What) <
                     std::tuple(b.Rank, -b.Since.Steady, b.What);
            });
  return changed;
}

}  // namespace veerwatch
