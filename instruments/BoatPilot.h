// The autopilot of a BoatModel: holds a bearing, or the angle of a wind, with a rudder by a compass of its
// own.
#pragma once

#include <optional>

namespace veerwatch {

struct PilotSettings {
  double BearingLag =
      4.0;                ///< time constant with which it takes up a bearing that it was told [s], 0 for none
  double MostTurn = 6.0;  ///< at which it takes up a bearing [deg/s]
  double CompassOffset = 0.0;  ///< what its compass shows more than the boat's [deg]
  double CompassLag = 1.0;     ///< time constant of its compass [s], 0 for none
  double Gain = 0.7;           ///< rudder for what its compass misses [deg/deg]
  double Lead = 2.0;           ///< rudder for the turn to a new bearing [deg for each deg/s]
  double Counter = 1.0;        ///< rudder against the turn that the boat makes [deg for each deg/s]
  double TrimTime = 60.0;      ///< in which the trim adds up to what the gain gives at once [s], above 0
  bool Refuses = false;        ///< takes no order and steers on to the bearing that it has
  bool Reversed = false;       ///< turns the wrong way
};

/// What a pilot is told.
struct PilotOrder {
  enum class What { Bearing, Wind };
  What Tells = What::Bearing;
  double Angle = 0.0;  ///< a bearing [deg magnetic], or where the apparent wind comes from [deg relative]
};

class BoatPilot {
 public:
  /// Steers to `bearing` by its own compass [deg magnetic] until it is told otherwise.
  explicit BoatPilot(double bearing) : m_bearing(bearing), m_wanted(bearing) {}

  /// Takes an order. A bearing is steered to. Of winds that are told one after the other the first is the
  /// angle that is held. `compass` is what the boat's compass shows [deg magnetic].
  void Take(const PilotOrder& order, const PilotSettings& settings, double compass);

  double Bearing() const { return m_bearing; }  ///< that it steers to [deg magnetic]

  /// The rudder that it asks for, `tick` [s, above 0] after the call before [deg, positive to starboard].
  /// `compass` as above, `turn` is the rate of turn [deg/s].
  double Rudder(const PilotSettings& settings, double compass, double turn, double tick);

 private:
  double m_bearing;
  double m_wanted;               ///< the bearing as far as it is taken up [deg magnetic]
  std::optional<double> m_wind;  ///< the angle that it holds [deg relative]
  std::optional<double> m_compass;
  double m_trim = 0.0;  ///< [deg]
};

}  // namespace veerwatch
