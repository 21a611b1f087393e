// The switch between the tracking modes: drives the ports and prepares the loop.
#pragma once

#include <optional>
#include <string_view>

#include "control/TrackLoop.h"
#include "nmea/NmeaReceiver.h"
#include "pilot/PilotOutput.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// Why Track is refused.
enum class TrackRefusal {
  NoGains,    ///< bandwidth, damping and limits give no usable gains
  NoHeading,  ///< the method needs one, and none came yet
};

/// One line for the status bar.
std::string_view TrackRefusalText(TrackRefusal why);

class TrackModes {
 public:
  class Observer {
   public:
    virtual ~Observer() = default;
    /// The mode is now `mode`, or still is after a switch that was refused.
    virtual void OnTrackMode(TrackMode mode) = 0;
    /// Track was refused. Comes after OnTrackMode.
    virtual void OnTrackRefused(TrackRefusal why) = 0;
    /// The alarm of the mode that is left is over.
    virtual void OnAlarmOver() = 0;
  };

  TrackModes(Settings& settings, NmeaReceiver& receiver, PilotOutput& pilot, TrackLoop& loop,
             Observer& observer)
      : m_settings(settings), m_receiver(receiver), m_pilot(pilot), m_loop(loop), m_observer(observer) {}

  /// Stops the input and closes the pilot port.
  void TrackSetOff();
  /// Starts the input anew and sees to the pilot port.
  void TrackSetSetup();
  /// Sees to the pilot port.
  void TrackSetManual();
  /// Computes the gains and sees to the pilot port. Refused, with everything as it was, while the settings
  /// give no usable gains.
  void TrackSetTrack() { TrackSetTrack(std::nullopt); }
  /// The same, to hold `angle` [deg relative, any turn] on the tracked side from the bearing as it is.
  void TrackSetTrack(const std::optional<float>& angle);

 private:
  void Leave();
  void Enter(TrackMode mode);

  Settings& m_settings;
  NmeaReceiver& m_receiver;
  PilotOutput& m_pilot;
  TrackLoop& m_loop;
  Observer& m_observer;
};

/// Which controls of the main window answer in a mode.
struct TrackControls {
  bool AutoPilot = false;        ///< entry box and nudges of the bearing
  bool Side = false;             ///< the option pair
  bool DesiredApparent = false;  ///< entry box, labels and value of the apparent angle
  bool DesiredTrue = false;      ///< the same for the true angle
  bool NudgeApparent = false;    ///< nudges of the desired apparent angle
  bool NudgeTrue = false;        ///< the same for the true angle
};

/// The table of what answers; only the chosen side of the two does.
TrackControls ControlsFor(TrackMode mode, TrackSide side);

}  // namespace veerwatch
