#include "instruments/BoatModel.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace veerwatch {

namespace {

constexpr double kRadian = std::numbers::pi / 180.0;
constexpr double kMilesPerDegree = 60.0;
constexpr double kSecondsPerHour = 3600.0;

double Turn360(double angle) {
  const double turn = std::fmod(angle, 360.0);
  return turn < 0.0 ? turn + 360.0 : turn;
}

double Turn180(double angle) {
  const double turn = std::remainder(angle, 360.0);
  return turn <= -180.0 ? 180.0 : turn;
}

/// Velocities and ways, to the north and to the east.
struct Vector {
  double North = 0.0;
  double East = 0.0;

  Vector operator+(const Vector& other) const { return {North + other.North, East + other.East}; }
  Vector operator-(const Vector& other) const { return {North - other.North, East - other.East}; }
  double Length() const { return std::hypot(North, East); }
  /// [deg true, [0, 360)]
  double Direction() const { return Turn360(std::atan2(East, North) / kRadian); }
};

Vector Towards(double direction, double length) {
  return {length * std::cos(direction * kRadian), length * std::sin(direction * kRadian)};
}

/// The part of a distance that is left to go shrinks by this factor in one tick.
double Remains(double lag) { return lag > 0.0 ? std::exp(-BoatModel::kTick / lag) : 0.0; }

/// To the side that the wind blows to [deg, positive to starboard].
double LeewayAt(const BoatSettings& settings, double angle) {
  return std::fabs(angle) < 90.0 ? -settings.Leeway * std::sin(2.0 * angle * kRadian) : 0.0;
}

double DeviationAt(const BoatSettings& settings, double headingTrue) {
  return settings.Deviation * std::sin(headingTrue * kRadian);
}

double CompassAt(const BoatSettings& settings, double headingTrue) {
  return Turn360(headingTrue - settings.Variation - DeviationAt(settings, headingTrue));
}

/// The true heading on which the compass shows `compass`.
double HeadingAt(const BoatSettings& settings, double compass) {
  double heading = compass + settings.Variation;
  for (int i = 0; i < 20; ++i) {
    heading = compass + settings.Variation + DeviationAt(settings, heading);
  }
  return Turn360(heading);
}

Vector Way(const EarthPlace& from, const EarthPlace& to) {
  return {(to.Latitude - from.Latitude) * kMilesPerDegree,
          (to.Longitude - from.Longitude) * kMilesPerDegree * std::cos(from.Latitude * kRadian)};
}

EarthPlace Moved(const EarthPlace& from, const Vector& way) {
  return {from.Latitude + way.North / kMilesPerDegree,
          from.Longitude + way.East / kMilesPerDegree / std::cos(from.Latitude * kRadian)};
}

}  // namespace

/// Nothing in the eye of the wind, the most on a reach, less before the wind.
double BoatPolarSpeed(const BoatSettings& settings, double angle, double windSpeed) {
  const double off = std::fabs(angle);
  const double drive = 1.0 - std::exp(-std::pow(off / 35.0, 2.0));
  const double aft = 1.0 - 0.25 * std::pow(off / 180.0, 4.0);
  return settings.HullSpeed * drive * aft * (1.0 - std::exp(-windSpeed / 8.0));
}

BoatSettings GustyBoat() {
  BoatSettings settings;
  settings.GustDeviation = 0.2;
  settings.ShiftDeviation = 4.0;
  settings.YawDeviation = 1.5;
  settings.VaneNoise = 1.5;
  settings.SpeedNoise = 0.1;
  return settings;
}

BoatSettings HardBoat(Sea sea) {
  BoatSettings settings = GustyBoat();
  settings.YawDeviation = 0.0;
  settings.Sea = SeaOf(sea);
  settings.Rudder = RudderSettings{};
  settings.Pilot.CompassOffset = 4.0;
  settings.WindSpeed = 15.0;
  settings.GustDeviation = 0.08;
  settings.ShiftDeviation = 2.0;
  settings.ShiftTime = 3.0;
  settings.SwingDeviation = 7.0;
  settings.VaneLag = 0.0;
  settings.VaneDelay = 1.5;
  settings.LogLag = 3.0;
  return settings;
}

BoatModel::BoatModel(const BoatSettings& settings, double heading, std::uint64_t seed)
    : m_settings(settings), m_random(seed), m_seaway(seed + 1), m_pilot(heading) {
  m_keel = HeadingAt(settings, heading);
  m_state.Heading = m_keel;
  m_state.Compass = CompassAt(settings, m_keel);
  constexpr double kWaypointAhead = 10.0;  // [nm]
  PutWaypoint(m_keel, kWaypointAhead);
  MoveWind();
  const double angle = Turn180(m_state.WindFrom - m_keel);
  m_state.Speed = BoatPolarSpeed(settings, angle, m_state.WindSpeed);
  Move();
  m_vane = {m_state.ApparentSpeed * std::cos(m_state.ApparentAngle * kRadian),
            m_state.ApparentSpeed * std::sin(m_state.ApparentAngle * kRadian)};
  m_log = m_state.Speed;
}

const BoatReadings& BoatModel::Tick() {
  ++m_ticks;
  m_state.Seconds = static_cast<double>(m_ticks) * kTick;
  MoveWind();
  MoveSea();
  Turn();
  Move();
  ReadVane();
  m_log = m_state.Speed + (m_log - m_state.Speed) * Remains(m_settings.LogLag);
  Read();
  return m_readings;
}

double BoatModel::Gauss() {
  // Two uniform numbers, of which the first is never 0, to one normal number.
  const double radius = std::sqrt(-2.0 * std::log(1.0 - m_random.Next()));
  return radius * std::cos(2.0 * std::numbers::pi * m_random.Next());
}

void BoatModel::Wander(double& value, double memory) {
  const double kept = Remains(memory);
  value = kept * value + std::sqrt(1.0 - kept * kept) * Gauss();
}

void BoatModel::MoveWind() {
  Wander(m_gust, m_settings.GustTime);
  Wander(m_shift, m_settings.ShiftTime);
  Wander(m_yaw, m_settings.YawTime);
  m_state.WindSpeed = std::max(0.0, m_settings.WindSpeed * (1.0 + m_settings.GustDeviation * m_gust));
  Swing();
  m_state.WindFrom = Turn360(m_settings.WindFrom + m_settings.ShiftDeviation * m_shift +
                             m_settings.SwingDeviation * m_swing);
}

void BoatModel::Swing() {
  if (m_settings.SwingDeviation == 0.0) {
    return;
  }
  Wander(m_swingAim, m_settings.SwingTime);
  // A second lag like the first leaves half of the variance.
  const double aim = std::numbers::sqrt2 * m_swingAim;
  m_swing = aim + (m_swing - aim) * Remains(m_settings.SwingTime);
}

void BoatModel::MoveSea() {
  m_sea = m_seaway.At(m_settings.Sea, m_state.Seconds);
  m_sea.Yaw += m_settings.YawDeviation * m_yaw;
}

void BoatModel::Turn() {
  if (m_settings.Rudder) {
    TurnByRudder(*m_settings.Rudder);
  } else {
    TurnAsAsked();
  }
  m_keel = Turn360(m_keel + m_state.TurnRate * kTick);
  m_state.Heading = Turn360(m_keel + m_sea.Yaw);
  m_state.Compass = CompassAt(m_settings, m_state.Heading);
}

double BoatModel::Missing() const {
  if (m_engaged) {
    const double missing = Turn180(m_pilot.Bearing() - m_state.Compass);
    return m_settings.Pilot.Reversed ? -missing : missing;
  }
  return m_wheel ? Turn180(*m_wheel - m_state.Compass) : 0.0;
}

void BoatModel::TurnAsAsked() {
  const double asked = std::clamp(Missing() / m_settings.TurnLag, -m_settings.TurnRate, m_settings.TurnRate);
  m_state.TurnRate = asked + (m_state.TurnRate - asked) * Remains(m_settings.RudderLag);
}

double BoatModel::RudderAsked() {
  if (m_engaged) {
    return m_pilot.Rudder(m_settings.Pilot, m_state.Compass, m_state.TurnRate, kTick);
  }
  // Somebody at the wheel steers as the pilot does, by the boat's compass.
  return m_wheel ? m_settings.Pilot.Gain * Missing() - m_settings.Pilot.Counter * m_state.TurnRate
                 : m_state.Rudder;
}

void BoatModel::TurnByRudder(const RudderSettings& rudder) {
  const double asked = std::clamp(RudderAsked(), -rudder.Most, rudder.Most);
  const double most = rudder.Rate * kTick;
  const double moved = std::clamp(asked - m_state.Rudder, -most, most);
  m_state.Rudder += moved;
  m_state.RudderTravel += std::fabs(moved);

  constexpr double kReferenceSpeed = 6.0;
  constexpr double kLeastWay = 0.15;  // some water always passes the rudder
  constexpr double kReferenceWind = 12.0;
  constexpr double kMostHeel = 3.0;  // the heeled boat spills what the wind has more
  const double way = std::max(kLeastWay, m_state.Speed / kReferenceSpeed);
  const double heel = std::min(kMostHeel, std::pow(m_state.ApparentSpeed / kReferenceWind, 2.0));
  const double pull = rudder.Pull * heel * std::sin(m_state.ApparentAngle * kRadian);
  const double turn = m_state.TurnRate;
  const double changes =
      rudder.Turn * way * (m_state.Rudder + pull) - turn - rudder.Damping * turn * std::fabs(turn);
  m_state.TurnRate += changes * kTick * way / rudder.Time;
}

void BoatModel::Move() {
  const Vector current = Towards(m_settings.CurrentTo, m_settings.CurrentSpeed);
  const Vector wind = Towards(m_state.WindFrom + 180.0, m_state.WindSpeed);

  const Vector overWater = wind - current;
  m_state.TrueSpeed = overWater.Length();
  m_state.TrueAngle = Turn180(overWater.Direction() + 180.0 - m_state.Heading);

  const double wanted = BoatPolarSpeed(m_settings, m_state.TrueAngle, m_state.TrueSpeed);
  m_state.Speed = wanted + (m_state.Speed - wanted) * Remains(m_settings.SpeedLag);
  const double leeway = LeewayAt(m_settings, m_state.TrueAngle);
  const Vector ground = Towards(m_state.Heading + leeway, m_state.Speed) + current;
  m_state.Course = ground.Direction();
  m_state.SpeedOverGround = ground.Length();
  const double miles = kTick / kSecondsPerHour;
  m_state.Place = Moved(m_state.Place, {ground.North * miles, ground.East * miles});

  const Vector apparent = wind - ground;
  m_state.ApparentSpeed = apparent.Length();
  m_state.ApparentAngle = Turn180(apparent.Direction() + 180.0 - m_state.Heading);
}

void BoatModel::ReadVane() {
  constexpr double kKnotsPerMetre = 3600.0 / 1852.0;
  const double masthead = m_settings.MastHeight * kRadian * kKnotsPerMetre;
  const double ahead =
      m_state.ApparentSpeed * std::cos(m_state.ApparentAngle * kRadian) + masthead * m_sea.PitchRate;
  const double right =
      m_state.ApparentSpeed * std::sin(m_state.ApparentAngle * kRadian) + masthead * m_sea.RollRate;
  const double remains = Remains(m_settings.VaneLag);
  m_vane = {ahead + (m_vane.Ahead - ahead) * remains, right + (m_vane.Right - right) * remains};
  m_vaneLate[m_vaneRead % kVaneKept] = m_vane;
  ++m_vaneRead;
}

bool BoatModel::Due(double period) const {
  const auto ticks = std::max<std::int64_t>(1, std::llround(period / kTick));
  return m_ticks % ticks == 0;
}

double BoatModel::Noisy(double knots) { return std::max(0.0, knots + m_settings.SpeedNoise * Gauss()); }

void BoatModel::Read() {
  m_readings.HeadingDue = Due(m_settings.HeadingPeriod);
  m_readings.OtherDue = Due(m_settings.OtherPeriod);
  m_readings.WindDue = Due(m_settings.WindPeriod);
  if (m_readings.HeadingDue || m_readings.OtherDue) {
    m_readings.Compass = m_state.Compass;
  }
  if (m_readings.OtherDue) {
    m_readings.Speed = Noisy(m_log);
    m_readings.GroundSpeed = Noisy(m_state.SpeedOverGround);
  }
  if (m_readings.WindDue) {
    ReadWind();
  }
}

void BoatModel::ReadWind() {
  const auto asked = static_cast<std::size_t>(std::max(0LL, std::llround(m_settings.VaneDelay / kTick)));
  const std::size_t late = std::min({asked, kVaneKept - 1, m_vaneRead - 1});
  const VaneWind& wind = m_vaneLate[(m_vaneRead - 1 - late) % kVaneKept];
  m_readings.ApparentAngle = std::atan2(wind.Right, wind.Ahead) / kRadian + m_settings.VaneNoise * Gauss();
  m_readings.ApparentSpeed = Noisy(std::hypot(wind.Ahead, wind.Right));
  if (m_settings.TrueWindSensor) {
    m_readings.TrueAngle = m_state.TrueAngle + m_settings.VaneNoise * Gauss();
    m_readings.TrueSpeed = Noisy(m_state.TrueSpeed);
  }
}

void BoatModel::PutWaypoint(double bearing, double range) {
  m_waypoint = Moved(m_state.Place, Towards(bearing, range));
}

BoatWaypoint BoatModel::Waypoint() const {
  const Vector way = Way(m_state.Place, m_waypoint);
  return {way.Length(), way.Direction(),
          m_state.SpeedOverGround * std::cos((way.Direction() - m_state.Course) * kRadian)};
}

void BoatModel::PilotStandby(std::optional<double> heading) {
  m_engaged = false;
  m_wheel = heading;
}

}  // namespace veerwatch
