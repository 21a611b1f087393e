// The motion that a sea gives a boat: sums of waves round one period of encounter, whose phases follow from a
// seed. A BoatModel has one.
#pragma once

#include <array>
#include <cstdint>

#include "platform/Random.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

struct SeaSettings {
  double Yaw = 0.0;     ///< standard deviation of what it adds to the heading [deg]
  double Roll = 0.0;    ///< the same of the roll [deg]
  double Pitch = 0.0;   ///< the same of the pitch [deg]
  double Period = 6.0;  ///< of encounter, in the middle of its waves [s], above 0
};

/// Smooth water; a slight sea; a moderate sea abeam; a rough one from astern that slews the boat about; a
/// steep one from ahead that pitches her.
SeaSettings SeaOf(Sea sea);

/// What a sea does at one moment.
struct SeaMotion {
  double Yaw = 0.0;        ///< [deg, positive to starboard]
  double RollRate = 0.0;   ///< [deg/s]
  double PitchRate = 0.0;  ///< [deg/s]
};

class Seaway {
 public:
  explicit Seaway(std::uint64_t seed);

  /// The motion at `seconds` since the start. What has no deviation costs nothing.
  SeaMotion At(const SeaSettings& settings, double seconds) const;

 private:
  static constexpr int kWaves = 7;
  struct Wave {
    double Pace = 1.0;   ///< its frequency as a part of the middle one
    double Phase = 0.0;  ///< [rad]
  };
  using Waves = std::array<Wave, kWaves>;

  static Waves Drawn(RandomSource& random);
  /// The sum of waves of the deviation `size`.
  static double Sum(const Waves& waves, double size, double period, double seconds);
  /// How fast that sum changes [1/s].
  static double Rate(const Waves& waves, double size, double period, double seconds);

  Waves m_yaw;
  Waves m_roll;
  Waves m_pitch;
};

}  // namespace veerwatch
