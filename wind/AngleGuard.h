// Keeps a boat that tracks a wind angle from pinching and from an accidental gybe: the bearing never leads
// closer to the apparent wind than one limit, nor further from the true wind than the other. It goes by where
// the winds come from over the earth, heading plus angle, which a boat that yaws in a sea does not change;
// so it can answer a shift at once, where the loop has to smooth.
//
// Source: own derivation; docs/wind-functions.md explains it.
#pragma once

#include "settings/TrackMode.h"

namespace veerwatch {

class AngleGuard {
 public:
  struct Limits {
    double LeastApparent = 25.0;  ///< [deg, (0, 90)]
    double LargestTrue = 165.0;   ///< [deg, (90, 180)]
  };

  /// A wind and the boat, not smoothed.
  struct Sample {
    double Apparent = 0.0;  ///< wind angle [deg relative, any turn]
    double True = 0.0;      ///< wind angle [deg relative, any turn]
    double Heading = 0.0;   ///< [deg magnetic, any turn]
    double Bearing = 0.0;   ///< of the pilot [deg magnetic, any turn]
  };

  enum class Risk { None, Pinching, Gybe };

  struct Answer {
    double Bearing = 0.0;    ///< that keeps the limits [deg magnetic, any turn]
    Risk Of = Risk::None;    ///< what the one that was asked about would have led to
    bool Corrected = false;  ///< they differ
  };

  /// Knows nothing of the wind yet.
  void Clear() { *this = AngleGuard(); }

  /// Takes a wind `seconds` [s, [0, 2]] after the one before, in every mode.
  void Feed(const Sample& sample, double seconds);

  /// What is held on a side, within the limits [deg relative]: 0 is on starboard.
  static double Within(const Limits& limits, TrackSide side, double held);

  /// The bearing that may be sent instead of `bearing` [deg magnetic, any turn] while `held` [deg relative]
  /// is held on `side`. The wind may come up to ten degrees closer to the held angle than a limit before it
  /// is used, but no closer than five. A wind on the wrong side is brought back the way it went. At most
  /// `mostAhead` off the heading [deg, above 0]. Where a sea yaws the boat so far that she would gybe at the
  /// largest angle, it is smaller by as much. `bearing` itself before a wind was fed.
  Answer Bound(const Limits& limits, TrackSide side, double held, double bearing, double mostAhead) const;

 private:
  /// Where a wind comes from, as a smoothed vector.
  struct Direction {
    double X = 0.0;
    double Y = 0.0;
    void Add(double angle, double weight);
    double Angle() const;  ///< [deg magnetic]
  };

  bool m_fed = false;
  double m_heading = 0.0;      // at present [deg magnetic]
  double m_vaneHeading = 0.0;  // as late as the vane [deg magnetic]
  double m_trim = 0.0;         // what the bearing is more than the heading, of a boat on her way [deg]
  double m_mean = 0.0;         // heading of the last quarter of a minute [deg magnetic]
  double m_yaw = 0.0;          // mean square of what it yaws about that [deg^2]
  Direction m_apparent;
  Direction m_true;
};

}  // namespace veerwatch
