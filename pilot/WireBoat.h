// The simulated boat on a wire: sends the sentences of her instruments and reads those for her pilot.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "instruments/BoatModel.h"
#include "pilot/PilotReader.h"
#include "settings/SimulateModel.h"

namespace veerwatch {

class WireBoat {
 public:
  /// As BoatModel has them. The pilot reads `reads`.
  WireBoat(const BoatSettings& settings, double heading, std::uint64_t seed,
           PilotReads reads = PilotReads::All)
      : m_boat(settings, heading, seed), m_reader(reads) {}

  /// Sails on for `seconds` and returns what the instruments sent meanwhile: whole lines, each with CR and
  /// LF. Parts of a tick wait for the next call.
  std::string Step(double seconds);

  /// Bytes for the autopilot, in pieces of any size.
  void Steer(std::string_view bytes);

  void PilotStandby(std::optional<double> heading) { m_boat.PilotStandby(heading); }
  void PilotEngage() { m_boat.PilotEngage(); }

  void PutWaypoint(double bearing, double range) { m_boat.PutWaypoint(bearing, range); }
  BoatWaypoint Waypoint() const { return m_boat.Waypoint(); }

  /// May be changed while sailing.
  BoatSettings& Set() { return m_boat.Set(); }
  const BoatState& State() const { return m_boat.State(); }
  const BoatPilot& Pilot() const { return m_boat.Pilot(); }
  const PilotReader& Reader() const { return m_reader; }

 private:
  void Send(const BoatReadings& readings);
  void SendOther(const BoatReadings& readings);
  void Line(const std::string& sentence) { m_sent.append(sentence).append("\r\n"); }

  BoatModel m_boat;
  PilotReader m_reader;
  double m_waiting = 0.0;  ///< [s] not sailed yet
  std::string m_sent;
};

}  // namespace veerwatch
