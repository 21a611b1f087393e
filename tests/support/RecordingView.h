// A helm's view that keeps every call as a line of text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "helm/Helm.h"
#include "platform/NumberText.h"

namespace veerwatch {

class RecordingView final : public HelmView {
 public:
  std::vector<std::string> Calls;  ///< such as "OnHeading 123.4", in their order

  std::string InputStatus;   ///< the latest text of the input panel
  std::string InputState;    ///< the latest state of the input
  std::string OutputStatus;  ///< the latest text of the output panel
  std::string OutputState;   ///< the latest state of the output

  /// Called from inside every OnNmeaData, for tests of what happens meanwhile.
  std::function<void()> DuringNmeaData;

  /// The calls since the last time.
  std::vector<std::string> Take() { return std::exchange(Calls, {}); }

  /// The calls whose name is one of `names`, in their order.
  std::vector<std::string> Only(const std::vector<std::string>& names) const {
    std::vector<std::string> found;
    for (const std::string& call : Calls) {
      const std::string name = call.substr(0, call.find(' '));
      if (std::find(names.begin(), names.end(), name) != names.end()) {
        found.push_back(call);
      }
    }
    return found;
  }

  std::size_t Count(const std::string& name) const { return Only({name}).size(); }

  void OnHeading(float heading) override { Keep("OnHeading", heading); }
  void OnBoatSpeed(float speed) override { Keep("OnBoatSpeed", speed); }
  void OnWaypoint(float range, float bearing) override { Keep("OnWaypoint", range, bearing); }
  void OnWindApparent(float angle, float speed) override { Keep("OnWindApparent", angle, speed); }
  void OnWindTrue(float angle, float speed) override { Keep("OnWindTrue", angle, speed); }
  void OnWindIndicator(float direction, float speed) override { Keep("OnWindIndicator", direction, speed); }
  void OnValuesBlanked() override { Keep("OnValuesBlanked"); }

  void OnInputStatus(std::string_view text) override {
    InputStatus = text;
    Keep("OnInputStatus", text);
  }
  void OnInputState(std::string_view text) override {
    InputState = text;
    Keep("OnInputState", text);
  }
  void OnNmeaListCleared() override { Keep("OnNmeaListCleared"); }
  void OnNmeaData(std::string_view line, bool used) override {
    Keep("OnNmeaData", std::string(line) + (used ? " used" : " unused"));
    if (DuringNmeaData) {
      DuringNmeaData();
    }
  }
  void OnNmeaError(std::string_view text) override { Keep("OnNmeaError", text); }

  void OnOutputStatus(std::string_view text) override {
    OutputStatus = text;
    Keep("OnOutputStatus", text);
  }
  void OnOutputState(std::string_view text) override {
    OutputState = text;
    Keep("OnOutputState", text);
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
  void OnTrackRefused(std::string_view reason) override { Keep("OnTrackRefused", reason); }

  void OnPolarUpdate(TrackMode mode, const InstrumentData& data) override {
    Keep("OnPolarUpdate", static_cast<float>(mode), data.BoatSpeed);
  }

 private:
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
