// All that a helm tells. Whoever looks on joins Helm::Observers() and overrides what it wants to know:
// windows, the command line, tests. Values and enums only; whoever shows one makes the text. What follows a
// wind is told after the sentence to the pilot has left.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "control/Supervisor.h"
#include "control/TrackModes.h"
#include "control/WatchNow.h"
#include "instruments/InstrumentData.h"
#include "nmea/LineFault.h"
#include "nmea/PortStatus.h"
#include "pilot/PilotSentences.h"
#include "platform/ObserverList.h"
#include "settings/TrackMode.h"
#include "wind/WindFunctions.h"

namespace veerwatch {

class HelmObserver {
 public:
  virtual ~HelmObserver() = default;

  // What the instruments say.

  virtual void OnHeading(float /*heading: folded raw, deg magnetic*/) {}
  virtual void OnBoatSpeed(float /*speed: raw, kn*/) {}
  virtual void OnWaypoint(float /*range: nm*/, float /*bearing: deg magnetic*/) {}
  virtual void OnWindApparent(float /*angle: raw, deg relative*/, float /*speed: raw, kn*/) {}
  virtual void OnWindTrue(float /*angle: smoothed, deg relative*/, float /*speed: smoothed, kn*/) {}
  virtual void OnWindIndicator(float /*direction: smoothed, deg true*/, float /*speed: smoothed, kn*/) {}
  /// The record for the polar window, after a wind with a valid boat speed and at every simulator tick.
  virtual void OnPolarUpdate(TrackMode /*mode*/, const InstrumentData& /*data*/) {}

  // The input.

  /// The input starts again: the value labels go blank, and the list of received sentences begins again.
  virtual void OnInputStarts() {}
  /// Each received line; `used` when it updated the record.
  virtual void OnNmeaLine(std::string_view /*line*/, LineFault /*fault*/, bool /*used*/) {}
  virtual void OnInputStatus(const PortStatus& /*status*/) {}
  virtual void OnInputState(InputState /*state*/) {}
  /// Why the port is not open, or what an open one has to complain of, as the system says; "" for nothing.
  virtual void OnInputFailure(const std::string& /*reason*/) {}
  /// What the chosen sources do not bring while others would, a line each; none when all is well.
  virtual void OnSourceAdvice(const std::vector<std::string>& /*lines*/) {}

  // The output.

  virtual void OnOutputStatus(const PortStatus& /*status*/) {}
  virtual void OnOutputState(OutputState /*state*/) {}
  /// The same of the pilot's own port, where it is wanted.
  virtual void OnOutputFailure(const std::string& /*reason*/) {}
  /// What does not leave though it was chosen, and why; PilotRefusal::Why::None when everything does again.
  virtual void OnOutputRefused(const PilotRefusal& /*refusal*/) {}
  /// Each sentence that is built, without its line end, whether or not a port is open to take it.
  virtual void OnPilotData(std::string_view /*sentence*/) {}

  // The loop.

  virtual void OnDesired(float /*apparent: deg relative*/, float /*true: deg relative*/) {}
  virtual void OnDelta(float /*apparent: deg, (-180, 180]*/, float /*true: deg, (-180, 180]*/) {}
  virtual void OnAutoPilot(float /*bearing: deg magnetic, [0, 360)*/) {}
  /// The error that the controller works on [deg], for the history.
  virtual void OnPilotDelta(float /*error*/) {}
  /// The bearing that goes to the pilot [deg magnetic], for the history.
  virtual void OnPilotHeading(float /*bearing*/) {}
  /// The alarm goes off, at every pass at which the error on `side` is beyond the limit.
  virtual void OnAlarm(TrackSide /*side*/, float /*error: deg*/) {}
  virtual void OnAlarmOver() {}

  // Who steers.

  /// The mode is now `mode`, or still is after a switch that was refused.
  virtual void OnTrackMode(TrackMode /*mode*/) {}
  /// Track was refused. Comes after OnTrackMode.
  virtual void OnTrackRefused(TrackRefusal /*why*/) {}
  /// The program, not the user, has chosen the side that is tracked.
  virtual void OnTrackSide(TrackSide /*side*/) {}
  /// A wind function has something to say, once.
  virtual void OnWindSays(WindSays /*what*/) {}
  /// A wind has been lost, or both are there again.
  virtual void OnWindLost(bool /*lost*/) {}
  /// The turn that runs is over: TurnFate::Taken, or what it lost.
  virtual void OnTurnEnds(TurnFate /*why*/) {}

  /// What the watch says, at every second and when its conditions change.
  virtual void OnWatch(const WatchNow& /*watch*/) {}

  /// A tick of the input's timer has been handled.
  virtual void OnTick() {}
};

using HelmObservers = ObserverList<HelmObserver>;

}  // namespace veerwatch
