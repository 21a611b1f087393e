#include "tests/closedloop/Passage.h"

#include <cmath>

namespace veerwatch {

Passage::Passage(const BoatSettings& boat, double heading, std::uint64_t seed)
    : Boat(boat, heading, seed),
      Input(seed + 1),
      m_helm(Set, NmeaPort, PilotPort, m_timer, m_clock, m_random) {
  Set.m_iPilotPort = static_cast<std::int16_t>(Set.m_iNmeaPort + 1);
  Set.m_fAutoPilot = static_cast<float>(heading);
  m_timer.OnTick = [this] { m_helm.Tick(); };
  m_helm.Modes().TrackSetSetup();
}

void Passage::Sail(double seconds, const std::function<void()>& each) {
  const auto ticks = std::lround(seconds / BoatModel::kTick);
  for (long tick = 0; tick < ticks; ++tick) {
    Input.Send(Boat.Step(BoatModel::kTick), Boat.State().Seconds);
    const std::string arrived = Input.Arrived(Boat.State().Seconds);
    if (!arrived.empty()) {
      NmeaPort.Receive(arrived);
    }
    Boat.Steer(PilotPort.TakeWritten());
    m_clock.Pass(std::lround(1000.0 * BoatModel::kTick));
    m_sinceTick += BoatModel::kTick;
    if (m_sinceTick >= 1.0) {
      m_sinceTick -= 1.0;
      m_timer.Tick();
    }
    if (each) {
      each();
    }
  }
}

void Passage::Track(TrackSide side) {
  m_helm.Loop().Side(side);
  m_helm.Modes().TrackSetTrack();
}

double Passage::Off(double apparent, double trueWind) const {
  const bool isApparent = m_helm.Loop().Side() == TrackSide::Apparent;
  const double desired = static_cast<double>(Set.DesiredAngle[isApparent ? 1 : 2]);
  return std::remainder((isApparent ? apparent : trueWind) - desired, 360.0);
}

double Passage::RealError() const { return Off(Boat.State().ApparentAngle, Boat.State().TrueAngle); }

double Passage::ShownError() const {
  const InstrumentData& data = m_helm.Data();
  return Off(static_cast<double>(data.WindAngleApparent), static_cast<double>(data.WindAngleTrue));
}

double Passage::BearingAhead() const {
  return std::remainder(static_cast<double>(Set.m_fAutoPilot) - Boat.State().Compass, 360.0);
}

}  // namespace veerwatch
