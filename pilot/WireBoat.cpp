#include "pilot/WireBoat.h"

#include <chrono>

#include "instruments/EarthPlace.h"
#include "nmea/Encode.h"

namespace veerwatch {

namespace {

/// `seconds` after a fixed morning, so that every run sends the same.
UtcMoment MomentAt(double seconds) {
  using namespace std::chrono;
  const auto whole = duration_cast<std::chrono::seconds>(duration<double>(seconds));
  const sys_seconds now = sys_days{year{2026} / January / 1} + hours{9} + whole;
  const auto midnight = floor<days>(now);
  const year_month_day date{midnight};
  const hh_mm_ss time{now - midnight};
  return {static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count()),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(date.year()) % 100};
}

}  // namespace

std::string WireBoat::Step(double seconds) {
  m_sent.clear();
  m_waiting += seconds;
  constexpr double kAlmost = 1e-9;
  while (m_waiting >= BoatModel::kTick - kAlmost) {
    m_waiting -= BoatModel::kTick;
    Send(m_boat.Tick());
  }
  return m_sent;
}

void WireBoat::Steer(std::string_view bytes) {
  if (const auto order = m_reader.Take(bytes, m_boat.Set().Variation)) {
    m_boat.Steer(*order);
  }
}

void WireBoat::Send(const BoatReadings& readings) {
  if (readings.HeadingDue) {
    Line(EncodeHdg(readings.Compass, m_boat.Set().Variation));
  }
  if (readings.OtherDue) {
    SendOther(readings);
  }
  if (readings.WindDue) {
    Line(EncodeMwv(readings.ApparentAngle, 'R', readings.ApparentSpeed));
    if (m_boat.Set().TrueWindSensor) {
      Line(EncodeMwv(readings.TrueAngle, 'T', readings.TrueSpeed));
    }
  }
}

void WireBoat::SendOther(const BoatReadings& readings) {
  const double variation = m_boat.Set().Variation;
  const BoatState& state = m_boat.State();
  const double ground = readings.GroundSpeed;
  Line(EncodeVhw(readings.Compass + variation, readings.Compass, readings.Speed));
  Line(EncodeRmc(MomentAt(state.Seconds), state.Place, ground, state.Course, variation));
  Line(EncodeVtg(state.Course, state.Course - variation, ground));
  Line(EncodeHvm(variation));
  const BoatWaypoint waypoint = m_boat.Waypoint();
  Line(EncodeRmb(m_boat.WaypointPlace(), waypoint.Range, waypoint.Bearing, waypoint.Closing));
}

}  // namespace veerwatch
