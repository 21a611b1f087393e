// The boat of the simulator's model "Boat": her instruments write the record, and her pilot reads the
// sentences that the program builds for the real one. So whatever a profile of the pilot does shows without a
// boat.
#pragma once

#include <optional>
#include <string_view>

#include "instruments/BoatModel.h"
#include "instruments/InstrumentRecord.h"
#include "pilot/PilotReader.h"
#include "platform/Clock.h"
#include "platform/Random.h"
#include "settings/Settings.h"

namespace veerwatch {

/// The boat that the settings describe. Whatever they hold becomes something that sails: what is beyond any
/// sea is taken as its end.
BoatSettings SimulatedBoatOf(const Settings& settings);

class SimulatedBoat {
 public:
  /// All of them outlive it. `random` is asked once for each boat, for her seed, where
  /// the settings have none.
  SimulatedBoat(const Settings& settings, InstrumentRecord& record, RandomSource& random)
      : m_settings(settings), m_record(record), m_random(random) {}

  /// The next tick begins anew: on the bearing of the settings, with the waypoint where they have it.
  void Restart() { m_boat.reset(); }

  /// Sails a second, by the settings as they are then, and writes what her instruments read at its end.
  void Tick(const Moment& now);

  /// Gives her pilot `sentences`, with their line ends.
  void Steer(std::string_view sentences);

 private:
  void Begin();
  void Write(const BoatReadings& readings, const Moment& now);

  const Settings& m_settings;
  InstrumentRecord& m_record;
  RandomSource& m_random;
  PilotReader m_reader;
  std::optional<BoatModel> m_boat;
};

}  // namespace veerwatch
