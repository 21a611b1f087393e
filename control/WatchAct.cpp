#include "control/WatchAct.h"

#include <cmath>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr int kComputed = 1;  // of m_iNmeaTrueWind

}  // namespace

bool WatchAct::NeedsBoatSpeed() const {
  return m_loop.Side() == TrackSide::True && m_settings.m_iNmeaTrueWind == kComputed;
}

WatchAct::Pass WatchAct::Before(bool outputOpen, const Moment& now) {
  if (!May()) {
    return Pass::Steers;
  }
  if (m_watch.WindJustChanged()) {
    m_turned = 0.0;
  }
  return Judge(outputOpen, now);
}

void WatchAct::After(const LoopStep& step) { m_turned += static_cast<double>(step.Correction); }

WatchAct::Pass WatchAct::Judge(bool outputOpen, const Moment& now) const {
  const Ages& values = m_watch.Values();
  if (Lacks(now)) {
    return Pass::None;
  }
  const bool speed =
      !NeedsBoatSpeed() || (values.Within(Watched::BoatSpeed, kOldest, now) && !m_watch.SpeedStuck(now));
  const bool pilot = outputOpen && !m_watch.OutputLost() && m_watch.Following();
  return speed && pilot && !TurnedEnough() ? Pass::Steers : Pass::Stands;
}

// A boat that has turned feels another wind: where it stays the same, the vane may be stuck.
bool WatchAct::TurnedEnough() const {
  constexpr double kEnough = 5.0;  // [deg]
  return !m_watch.WindChanges() || std::fabs(m_turned) >= kEnough;
}

void WatchAct::TakeBack(Order& order) {
  if (m_watch.WindChanges() || m_turned == 0.0) {
    return;
  }
  m_loop.SetAutoPilot(static_cast<double>(m_settings.m_fAutoPilot) - m_turned);
  m_turned = 0.0;
  order.Turned = true;
}

WatchAct::Order WatchAct::Second(const Moment& now) {
  Order order;
  if (!May()) {
    m_acts = false;
    m_wentUp = false;
    m_portLost = false;
    m_turned = 0.0;
    m_loop.Luff(0.0);
    return order;
  }
  if (NeedsBoatSpeed() && m_watch.Now().Find(Condition::NoBoatSpeed) != nullptr) {
    order.Switched = m_loop.HoldApparent();
  }
  TakeBack(order);
  KeepOn(now, order);
  TakePortBack(now, order);
  Luff(order);
  m_acts = Judge(!m_portLost, now) != Pass::Steers || m_loop.Luffs() || order.Switched;
  return order;
}

void WatchAct::KeepOn(const Moment& now, Order& order) {
  constexpr std::int64_t kKeepsOn = 30000;  // [ms]
  constexpr std::int64_t kGoesUp = 10000;   // [ms]
  constexpr double kGybePossible = 150.0;   // [deg]
  constexpr double kUp = 20.0;              // [deg]
  const ValueAge wind = m_watch.Values().At(Held(), now);
  if (wind.State == Freshness::Waiting || wind.Age <= kOldest) {
    m_wentUp = m_wentUp && wind.Gone();
    return;
  }
  order.Sends = m_settings.m_bWatchKeepSending && wind.Age <= kOldest + kKeepsOn;
  const auto angle = m_watch.LatestAngle();
  if (m_settings.m_bWatchHeadingUp && !m_wentUp && wind.Age >= kGoesUp && angle &&
      std::fabs(*angle) > kGybePossible) {
    m_wentUp = true;
    m_loop.SetAutoPilot(static_cast<double>(m_settings.m_fAutoPilot) + std::copysign(kUp, *angle));
    order.Turned = true;
    order.Sends = true;
  }
}

void WatchAct::TakePortBack(const Moment& now, Order& order) {
  const bool lost = m_watch.OutputLost();
  if (m_portLost && !lost && m_watch.Values().Within(Watched::Heading, kOldest, now)) {
    m_loop.BeginAt(static_cast<double>(m_record.Data().Heading));
    order.Turned = true;
  }
  m_portLost = lost;
}

void WatchAct::Luff(Order& order) {
  constexpr double kLuff = 8.0;  // [deg]
  if (m_watch.GybeRisk() != m_loop.Luffs()) {
    m_loop.Luff(m_watch.GybeRisk() ? kLuff : 0.0);
    order.Turned = true;
  }
}

}  // namespace veerwatch
