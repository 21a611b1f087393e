// What the main window is to every other window: its settings and its public operations.
#pragma once

#include "helm/HelmNow.h"
#include "helm/HelmObserver.h"
#include "instruments/InstrumentRecord.h"
#include "settings/Settings.h"

namespace veerwatch {

class MainWindowApi : public Settings {
 public:
  virtual ~MainWindowApi() = default;

  /// Starts the input: the instrument port, or the simulator with m_bSimulate. Always true.
  virtual bool NmeaStart() = 0;
  virtual void NmeaStop() = 0;
  /// Opens the pilot port, unless simulating or one port serves both ways.
  virtual void PilotStart() = 0;
  virtual void PilotStop() = 0;
  /// Sets every default, overlays the profile when `recall`, and goes to Setup (Manual when simulating).
  virtual void ProfileRecall(bool recall) = 0;
  /// Writes the profile as a close does and goes on. What goes wrong is said in the banner.
  virtual void KeepSettings() = 0;
  /// Moves the simulated boat to `time` [h] and returns the waypoint from there [deg magnetic], [nm].
  virtual void SimulateTime(float time, float& timeWaypointBearing, float& timeWaypointRange) = 0;
  /// Moves the held wind angle and the autopilot bearing by `change` [deg, positive to starboard]; only in
  /// Track.
  virtual void TrackSteerTo(float change) = 0;
  /// A turn has the pilot from now on, until TurnOver() or HelmObserver::OnTurnEnds().
  virtual void TurnBegins() = 0;
  virtual void TurnOver() = 0;
  /// Sets and shows the autopilot bearing [deg magnetic, any turn] for the turn that has the pilot. One that
  /// is not finite changes nothing.
  virtual void AutoPilotSet(float bearing) = 0;
  /// Sends the bearing in Manual at once, though no wind has come.
  virtual void PilotSendNow() = 0;
  /// Whom the helm tells.
  virtual HelmObservers& Observers() = 0;
  /// What the helm does at this moment.
  virtual HelmNow Now() const = 0;
  /// What the instruments say.
  virtual const InstrumentRecord& Record() const = 0;
  /// Lets a red alarm be heard once, as `sound` has it.
  virtual void AlarmTest(AlarmSound sound) = 0;
  virtual void TrackSetOff() = 0;
  virtual void TrackSetSetup() = 0;
  virtual void TrackSetManual() = 0;
  virtual void TrackSetTrack() = 0;
};

}  // namespace veerwatch
