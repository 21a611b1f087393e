// A main window in memory: its settings, and the calls of its operations in order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "helm/MainWindowApi.h"

namespace veerwatch {

class FakeMainWindow final : public MainWindowApi {
 public:
  std::vector<std::string> Calls;    ///< with the ports and the simulator at the moment of the call
  std::vector<float> SimulateTimes;  ///< times that SimulateTime was asked for [h]
  std::vector<AlarmSound> Heard;     ///< sounds that were tried
  HelmObservers Tells;               ///< whom the helm tells
  HelmNow Answer;                    ///< what the helm does
  InstrumentRecord Instruments{*this};
  float Bearing = 0.0F;           ///< that the turn set last
  float WaypointBearing = 77.0F;  ///< what SimulateTime answers
  float WaypointRange = 6.25F;

  bool NmeaStart() override { return true; }
  void NmeaStop() override {}
  void PilotStart() override {}
  void PilotStop() override {}
  void ProfileRecall(bool /*recall*/) override {}
  void KeepSettings() override { Note("Keep"); }
  void SimulateTime(float time, float& timeWaypointBearing, float& timeWaypointRange) override {
    SimulateTimes.push_back(time);
    m_fSimulateTime = time;
    timeWaypointBearing = WaypointBearing;
    timeWaypointRange = WaypointRange;
  }
  void TrackSteerTo(float /*change*/) override {}
  void TurnBegins() override {}
  void TurnOver() override {}
  void AutoPilotSet(float bearing) override { Bearing = bearing; }
  void PilotSendNow() override {}
  HelmObservers& Observers() override { return Tells; }
  HelmNow Now() const override { return Answer; }
  const InstrumentRecord& Record() const override { return Instruments; }
  void AlarmTest(AlarmSound sound) override { Heard.push_back(sound); }
  void TrackSetOff() override { Note("Off"); }
  void TrackSetSetup() override { Note("Setup"); }
  void TrackSetManual() override { Note("Manual"); }
  void TrackSetTrack() override { Note("Track"); }

 private:
  void Note(const char* mode) {
    Calls.push_back(std::string(mode) + " " + std::to_string(m_iNmeaPort) + " " +
                    std::to_string(m_iPilotPort) + (m_bSimulate ? " simulating" : ""));
  }
};

}  // namespace veerwatch
