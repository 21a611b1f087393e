// Holds a wind angle by the direction of the true wind over the earth. That direction, heading plus true wind
// angle, does not know how the boat turns, so it can be smoothed without a lag inside the loop: the boat is
// steered to a course, and the course follows the wind's shifts. Needs no tuning to boat or sentence rate.
//
// Source: own derivation; docs/control.md explains it.
#pragma once

#include <optional>

#include "control/BearingLimits.h"
#include "settings/TrackMode.h"

namespace veerwatch {

class TrackDirection {
 public:
  /// A true wind and the boat, not smoothed.
  struct Sample {
    double WindAngle = 0.0;         ///< [deg relative, any turn]
    double WindSpeed = 0.0;         ///< [kn]
    double BoatSpeed = 0.0;         ///< [kn]
    std::optional<double> Heading;  ///< [deg magnetic, any turn]; nothing while none comes
    double Bearing = 0.0;           ///< of the pilot [deg magnetic, any turn]
  };

  /// What is to be held.
  struct Aim {
    TrackSide Side = TrackSide::True;
    double Target = 0.0;                 ///< wind angle [deg relative]
    std::optional<double> ApparentMean;  ///< the apparent angle of the last seconds [deg relative]
  };

  struct Answer {
    LimitedBearing Steer;
    double Error = 0.0;  ///< smoothed wind angle less the one that is to be held [deg, (-180, 180]]
  };

  /// Knows nothing of the wind yet.
  void Clear() { *this = TrackDirection(); }

  /// Takes a wind `seconds` [s, [0, 2]] after the one before; in every mode, so that the direction is known
  /// when tracking begins. `bandwidth` is four times the time constant of the direction [s, above 0].
  void Feed(const Sample& sample, double seconds, double bandwidth);

  /// Tracking begins, from `bearing` [deg magnetic]. What a boat that goes straight shows between bearing and
  /// heading is the pilot's own offset, and stays.
  void Start(double bearing);
  /// The same from where a turn has led. The pilot's own offset is that of the last seconds, and for a minute
  /// and a half it is learned faster: on the other tack the pilot has to trim anew.
  void Resume(double bearing);
  /// What is held, or its side, was changed: the bearing has followed already.
  void Reset();

  /// Once a second: the new bearing from `bearing` [deg magnetic]; nothing in between and while no wind was
  /// fed. `seconds` as for Feed(), which comes before.
  std::optional<Answer> Step(const Aim& aim, double bearing, const BearingLimits& limits, double seconds);

 private:
  /// That of the vector of a wind [kn], as a part of the smoothed speed [0.1, 2]. A masthead that swings
  /// shows the direction least true when it shows little wind, and a single gust does not outweigh all the
  /// rest.
  double Length(double windSpeed) const;
  /// The angle of the smoothed direction [deg magnetic].
  double Direction() const;
  double TrueTarget(const Aim& aim) const;
  /// Moves to the goal, or waits until it is worth it.
  LimitedBearing Move(double goal, double bearing, const BearingLimits& limits, double seconds);

  bool m_fed = false;
  double m_heading = 0.0;      // at present [deg magnetic]
  double m_vaneHeading = 0.0;  // as late as the vane [deg magnetic]
  double m_x = 0.0;            // the smoothed direction as a vector
  double m_y = 0.0;
  double m_apart = 0.0;  // for so long the wind has come from elsewhere [s]
  double m_windSpeed = 0.0;
  double m_boatSpeed = 0.0;
  double m_trim = 0.0;         // the pilot's own offset [deg]
  double m_offset = 0.0;       // of the bearing from the heading, in the last seconds [deg]
  double m_fresh = 0.0;        // for so long the pilot trims anew [s]
  double m_bias = 0.0;         // of the apparent wind's target, positive away from the bow [deg]
  double m_off = 0.0;          // distance to the goal, added up [deg s]
  double m_sinceAnswer = 0.0;  // [s]
};

}  // namespace veerwatch
