#include "control/TrackController.h"

#include <cmath>

namespace veerwatch {

double TrackController::Step(double error, double /*elapsed*/) {
  const double correction = (error + m_integral) * m_gains.Proportional;
  const double integral = m_integral + error * m_gains.Integral;
  m_integral = std::isfinite(integral) ? integral : 0.0;
  return correction;
}

}  // namespace veerwatch
