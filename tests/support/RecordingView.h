// Keeps all that a helm tells, or a receiver, a pilot output or the modes alone, as lines of text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "control/TrackModes.h"
#include "helm/HelmObserver.h"
#include "nmea/NmeaReceiver.h"
#include "pilot/PilotOutput.h"
#include "platform/NumberText.h"

namespace veerwatch {

class RecordingView final : public HelmObserver,
                            public NmeaReceiver::Observer,
                            public PilotOutput::Observer,
                            public TrackModes::Observer {
 public:
  std::vector<std::string> Calls;  ///< such as "OnHeading 123.4", in their order

  std::vector<WatchNow> Watches;  ///< what the watch said, in its order

  std::string InputStatus;   ///< the latest text of the input panel
  std::string InputState;    ///< the latest state of the input
  std::string OutputStatus;  ///< the latest text of the output panel
  std::string OutputState;   ///< the latest state of the output

  /// Called from inside every OnNmeaLine, for tests of what happens meanwhile.
  std::function<void()> DuringNmeaLine;

  /// The calls since the last time.
  std::vector<std::string> Take() { return std::exchange(Calls, {}); }

  /// The calls whose name is one of `names`, in their order.
  std::vector<std::string> Only(const std::vector<std::string>& names) const {
    std::vector<std::string> found;
    for (const std::string& call : Calls) {
      if (std::find(names.begin(), names.end(), NameOf(call)) != names.end()) {
        found.push_back(call);
      }
    }
    return found;
  }

  std::size_t Count(const std::string& name) const { return Only({name}).size(); }

  /// The names of the calls, in their order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names(Calls.size());
    std::transform(Calls.begin(), Calls.end(), names.begin(), NameOf);
    return names;
  }

  void OnHeading(float heading) override { Keep("OnHeading", heading); }
  void OnBoatSpeed(float speed) override { Keep("OnBoatSpeed", speed); }
  void OnWaypoint(float range, float bearing) override { Keep("OnWaypoint", range, bearing); }
  void OnWindApparent(float angle, float speed) override { Keep("OnWindApparent", angle, speed); }
  void OnWindTrue(float angle, float speed) override { Keep("OnWindTrue", angle, speed); }
  void OnWindIndicator(float direction, float speed) override { Keep("OnWindIndicator", direction, speed); }
  void OnPolarUpdate(TrackMode mode, const InstrumentData& data) override {
    Keep("OnPolarUpdate", static_cast<float>(mode), data.BoatSpeed);
  }

  void OnInputStarts() override { Keep("OnInputStarts"); }
  void OnNmeaLine(std::string_view line, LineFault fault, bool used) override {
    std::string text;
    ListedLine(line, fault, text);
    Keep("OnNmeaLine", text + (used ? " used" : " unused"));
    if (fault != LineFault::None) {
      ListedFault(line, fault, text);
      Keep("OnNmeaError", text);
    }
    if (DuringNmeaLine) {
      DuringNmeaLine();
    }
  }
  void OnSentence(std::string_view line, const Dispatcher::Outcome& outcome, const Moment& /*now*/) override {
    OnNmeaLine(line, outcome.Incomplete ? LineFault::Decode : LineFault::None, outcome.Used);
  }
  void OnOtherLine(std::string_view line, LineFault fault) override { OnNmeaLine(line, fault, false); }
  void OnInputStatus(const PortStatus& status) override {
    InputStatus = InputStatusText(status);
    Keep("OnInputStatus", InputStatus);
  }
  void OnInputState(veerwatch::InputState state) override {
    InputState = InputStateText(state);
    Keep("OnInputState", InputState);
  }
  void OnInputFailure(const std::string& reason) override { Keep("OnInputFailure", reason); }
  void OnSourceAdvice(const std::vector<std::string>& lines) override {
    std::string text;
    for (const std::string& line : lines) {
      text += line + ";";
    }
    Keep("OnSourceAdvice", text);
  }

  void OnOutputStatus(const PortStatus& status) override {
    OutputStatus = OutputStatusText(status);
    Keep("OnOutputStatus", OutputStatus);
  }
  void OnOutputState(veerwatch::OutputState state) override {
    OutputState = OutputStateText(state);
    Keep("OnOutputState", OutputState);
  }
  void OnOutputFailure(const std::string& reason) override { Keep("OnOutputFailure", reason); }
  void OnOutputRefused(const PilotRefusal& refusal) override {
    Keep("OnOutputRefused", PilotRefusalText(refusal));
  }
  void OnPilotData(std::string_view sentence) override { Keep("OnPilotData", sentence); }

  void OnDesired(float apparent, float trueWind) override { Keep("OnDesired", apparent, trueWind); }
  void OnDelta(float apparent, float trueWind) override { Keep("OnDelta", apparent, trueWind); }
  void OnAutoPilot(float bearing) override { Keep("OnAutoPilot", bearing); }
  void OnPilotDelta(float error) override { Keep("OnPilotDelta", error); }
  void OnPilotHeading(float bearing) override { Keep("OnPilotHeading", bearing); }
  void OnAlarm(TrackSide side, float error) override {
    Keep(side == TrackSide::Apparent ? "OnAlarm apparent" : "OnAlarm true", error);
  }
  void OnAlarmOver() override { Keep("OnAlarmOver"); }

  void OnTrackMode(TrackMode mode) override { Keep("OnTrackMode", static_cast<float>(mode)); }
  void OnTrackRefused(TrackRefusal why) override { Keep("OnTrackRefused", static_cast<float>(why)); }
  void OnTrackSide(TrackSide side) override { Keep("OnTrackSide", static_cast<float>(side)); }
  void OnWindSays(WindSays what) override { Keep("OnWindSays", static_cast<float>(what)); }
  void OnWindLost(bool lost) override { Keep("OnWindLost", lost ? "yes" : "no"); }
  void OnTurnEnds(TurnFate why) override {
    constexpr const char* kFates[] = {"GoesOn", "Taken",     "InputStopped", "NoInputData",
                                      "NoWind", "NoHeading", "NoOutput",     "Stuck"};
    Keep("OnTurnEnds", kFates[static_cast<std::size_t>(why)]);
  }

  /// Not among the calls, as it comes at every second.
  void OnWatch(const WatchNow& watch) override { Watches.push_back(watch); }
  void OnTick() override { Keep("OnTick"); }

 private:
  static std::string NameOf(const std::string& call) { return call.substr(0, call.find(' ')); }

  void Keep(std::string name) { Calls.push_back(std::move(name)); }
  void Keep(std::string name, std::string_view text) {
    Calls.push_back(std::move(name.append(" ").append(text)));
  }
  void Keep(std::string name, float a) { Keep(std::move(name), ShortestText(a)); }
  void Keep(std::string name, float a, float b) {
    Keep(std::move(name), ShortestText(a) + " " + ShortestText(b));
  }
};

}  // namespace veerwatch
