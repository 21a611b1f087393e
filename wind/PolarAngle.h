// Holds the angle at which a polar makes the most way to windward, or to leeward, in the true wind of now: it
// moves the held angle slowly, so that no gust moves the boat.
#pragma once

#include <functional>
#include <optional>

#include "settings/TrackMode.h"

namespace veerwatch {

/// What a polar says of the best way to windward or to leeward.
struct BestCourse {
  double Angle = 0.0;   ///< true wind angle [deg, [0, 180]]
  bool AtEdge = false;  ///< the table ends there: a better one may lie beyond
};

/// Asks a polar in a true wind of `windSpeed` [kn], to windward or to leeward; nothing where it has none.
using BestCourseSource = std::function<std::optional<BestCourse>(double windSpeed, bool upwind)>;

class PolarAngle {
 public:
  /// The boat and her wind.
  struct Sample {
    double WindSpeed = 0.0;                ///< of the true wind [kn]
    double BoatSpeed = 0.0;                ///< [kn]
    TrackSide Side = TrackSide::Apparent;  ///< that is tracked
    double Held = 0.0;                     ///< angle of that side [deg relative]
  };

  /// Begins with the wind `angle` [deg relative]: forward of the beam it goes to windward.
  void Begin(double angle);

  struct Answer {
    double Held = 0.0;    ///< angle of the tracked side to hold now [deg relative]
    bool AtEdge = false;  ///< the polar's table ends at the best angle
  };
  /// `seconds` [s, [0, 2]] after the call before; the best angle goes no further from the true wind than
  /// `largest` [deg]. Nothing where the polar has no best angle.
  std::optional<Answer> Step(const BestCourseSource& polar, double largest, const Sample& sample,
                             double seconds);

  bool Upwind() const { return m_upwind; }
  /// The true wind that the polar is asked for [kn].
  double WindSpeed() const { return m_windSpeed; }

 private:
  bool m_upwind = true;
  bool m_first = true;
  double m_windSpeed = 0.0;
  double m_boatSpeed = 0.0;
};

}  // namespace veerwatch
