#include "instruments/BoatPilot.h"

#include <algorithm>
#include <cmath>

namespace veerwatch {

namespace {

double Missing(double wanted, double has) { return std::remainder(wanted - has, 360.0); }

/// The part of a way that is made in `tick` by what follows with the time constant `lag`.
double Follows(double lag, double tick) { return lag > 0.0 ? 1.0 - std::exp(-tick / lag) : 1.0; }

}  // namespace

void BoatPilot::Take(const PilotOrder& order, const PilotSettings& settings, double compass) {
  if (settings.Refuses) {
    return;
  }
  if (order.Tells == PilotOrder::What::Bearing) {
    m_wind.reset();
    m_bearing = order.Angle;
    return;
  }
  if (!m_wind) {
    m_wind = order.Angle;
  }
  const double shows = compass + settings.CompassOffset;
  m_bearing = shows + Missing(order.Angle, *m_wind);
}

double BoatPilot::Rudder(const PilotSettings& settings, double compass, double turn, double tick) {
  const double shows = compass + settings.CompassOffset;
  m_compass =
      m_compass ? *m_compass + Missing(shows, *m_compass) * Follows(settings.CompassLag, tick) : shows;
  const double most = settings.MostTurn * tick;
  const double step =
      std::clamp(Missing(m_bearing, m_wanted) * Follows(settings.BearingLag, tick), -most, most);
  m_wanted += step;

  // The trim is for what pulls the boat aside all the time, and nothing for a turn.
  constexpr double kTrimsWithin = 15.0;
  constexpr double kMostTrim = 15.0;
  const double missing = Missing(m_wanted, *m_compass);
  if (std::fabs(missing) < kTrimsWithin) {
    m_trim += settings.Gain * missing * tick / settings.TrimTime;
    m_trim = std::clamp(m_trim, -kMostTrim, kMostTrim);
  }
  const double rudder =
      settings.Gain * missing + settings.Lead * step / tick - settings.Counter * turn + m_trim;
  return settings.Reversed ? -rudder : rudder;
}

}  // namespace veerwatch
