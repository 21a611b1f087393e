// The autopilot of a BoatModel: takes autopilot sentences, and steers a rudder by a compass of its own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

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
  bool Refuses = false;        ///< takes no bearing and steers on to the one that it has
  bool Reversed = false;       ///< turns the wrong way
};

class BoatPilot {
 public:
  /// Steers to `bearing` by its own compass [deg magnetic] until it is told another one.
  explicit BoatPilot(double bearing) : m_bearing(bearing), m_wanted(bearing) {}

  /// Bytes in pieces of any size. The heading to steer of each good autopilot sentence becomes the bearing;
  /// any other line is counted and leaves it.
  void Take(std::string_view bytes, bool refuses);

  double Bearing() const { return m_bearing; }  ///< that it steers to [deg magnetic]
  int GoodSentences() const { return m_goodSentences; }
  int BadSentences() const { return m_badSentences; }
  int BearingChanges() const {
    return m_bearingChanges;
  }  ///< good sentences with another bearing than before

  /// The rudder that it asks for, `tick` [s, above 0] after the call before [deg, positive to starboard].
  /// `compass` is what the boat's compass shows [deg magnetic], `turn` the rate of turn [deg/s].
  double Rudder(const PilotSettings& settings, double compass, double turn, double tick);

 private:
  void TakeLine(bool refuses);

  double m_bearing;
  double m_wanted;  ///< the bearing as far as it is taken up [deg magnetic]
  std::optional<double> m_compass;
  double m_trim = 0.0;           ///< [deg]
  std::optional<double> m_told;  ///< by the latest good sentence [deg magnetic]
  std::string m_received;
  int m_goodSentences = 0;
  int m_badSentences = 0;
  int m_bearingChanges = 0;
};

}  // namespace veerwatch
