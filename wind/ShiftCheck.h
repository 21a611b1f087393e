// Finds a lasting shift of the true wind: its direction over the earth, not the angle at the boat, against
// its mean since the held angle was set.
#pragma once

#include <optional>

namespace veerwatch {

class ShiftCheck {
 public:
  /// What is a shift.
  struct Limits {
    double Degrees = 15.0;  ///< beyond it [deg, above 0]
    double Seconds = 30.0;  ///< for so long [s, at least 0]
  };

  /// Takes a direction [deg, any turn] `seconds` [s, [0, 2]] after the one before, in every mode.
  void Feed(double direction, double seconds, const Limits& limits);

  /// The held angle was set: the mean begins anew, with the wind of the last two minutes.
  void Begin();

  /// The shift that stands [deg, (-180, 180], positive where the wind has veered, to starboard].
  std::optional<double> Shift() const;

 private:
  /// A mean direction as a vector.
  struct Mean {
    double X = 0.0;
    double Y = 0.0;
    void Add(double direction, double weight);
    double Angle() const;  ///< [deg]
  };

  bool m_fed = false;
  Mean m_now;             // of the last seconds
  Mean m_recent;          // of the last two minutes
  Mean m_since;           // since Begin()
  double m_known = 0.0;   // the time for which directions have come [s]
  double m_weight = 0.0;  // the time that m_since stands for [s]
  double m_beyond = 0.0;  // for so long the shift is beyond the limit [s]
  bool m_stands = false;
};

/// What a sailor calls a shift [deg, positive to starboard] with the wind on the side of `angle` [deg
/// relative, positive to starboard]: true for a lift, by which the wind comes from further aft.
bool IsLift(double shift, double angle);

}  // namespace veerwatch
