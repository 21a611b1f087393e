// "veerwatch-cli boat": the simulated boat on the wire, for any program.
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "pilot/WireBoat.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

struct BoatOptions {
  std::vector<std::string> Listen;  ///< at least one, as OpenBoatEnd takes them
  double Heading = 155.0;           ///< at the start [deg magnetic]
  double Wind = 12.0;               ///< [kn, [0, 60]]
  double From = 200.0;              ///< [deg true]
  double Gust = 10.0;               ///< standard deviation of the wind's speed [%, [0, 100]]
  double Shift = 4.0;               ///< standard deviation of its direction [deg, [0, 90]]
  double Leeway = 4.0;              ///< [deg, [0, 30]]
  double Lag = 4.0;                 ///< of the pilot [s, [0, 60]]
  double Offset = 0.0;              ///< what the pilot's compass shows more [deg]
  double Variation = 3.0;           ///< [deg, east positive, [-180, 180]]
  double Rate = 1.0;                ///< of winds and headings [1/s, (0, 20]]
  Sea TheSea = Sea::Slight;
  PilotReads Reads = PilotReads::All;
  bool TrueWind = false;  ///< a sensor's true wind is sent, too
  std::uint64_t Seed = 1;
  double Time = 0.0;  ///< to sail [s], 0 until somebody ends it
};

/// The boat of the options; throws CommandError where one is out of its range.
WireBoat BoatOf(const BoatOptions& options);

/// The boat with whoever listens to her. What is only her own sentence come back is not read.
class BoatOnWire {
 public:
  explicit BoatOnWire(const BoatOptions& options) : m_boat(BoatOf(options)) {}

  /// Sails on for `seconds` and returns what the instruments sent.
  const std::string& Step(double seconds);
  /// A line from whoever listens, without its end.
  void Line(std::string_view line);

  const WireBoat& Boat() const { return m_boat; }

 private:
  WireBoat m_boat;
  std::string m_step;
  std::string m_recent;  ///< the sentences of the latest seconds
};

/// Serves the boat in real time and says on `out` where. `ended` is asked in every step. Throws CommandError.
void Boat(const BoatOptions& options, std::ostream& out, const std::function<bool()>& ended);

}  // namespace veerwatch
