// The control loop: holds the desired wind angle by correcting the autopilot bearing at every pass.
#pragma once

#include <optional>
#include <utility>

#include "control/TrackController.h"
#include "instruments/InstrumentData.h"
#include "platform/Clock.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// What a loop is tuned with.
struct TrackTuning {
  float Bandwidth = 0.0F;  ///< [s]
  float Damping = 0.0F;
};

/// What one pass of the loop did, for whoever sends and tells.
struct LoopStep {
  bool Ran = false;            ///< the mode has passes
  bool Followed = false;       ///< the desired angles follow the wind
  float DeltaApparent = 0.0F;  ///< error of the apparent wind angle [deg, (-180, 180]]
  float DeltaTrue = 0.0F;      ///< the same for the true wind
  bool Tracked = false;        ///< the controller corrected the bearing
  float Error = 0.0F;          ///< what it worked on [deg]
  bool Sends = false;          ///< the bearing is for the pilot
  enum class Alarm { AsBefore, Raised, Over };
  Alarm Rings = Alarm::AsBefore;  ///< Raised at every pass at which the error is beyond the limit
};

class TrackLoop {
 public:
  /// Everything outlives this.
  TrackLoop(Settings& settings, const InstrumentData& data) : m_settings(settings), m_data(data) {}

  /// Computes the gains from bandwidth and damping and zeroes the accumulator. False, with nothing changed,
  /// when the bandwidth is not above 0 or a gain is not finite.
  bool StartTracking();

  /// One pass over the record at `now`, by the present mode.
  /// Deliberate: no correction is limited, and an error equal to the alarm limit raises no alarm.
  LoopStep ControlStep(const Moment& now);

  /// Moves the held wind angle by -`change` and the bearing by `change` [deg, positive to starboard], and
  /// zeroes the accumulator. Only in Track, and only for a finite change: true when it did.
  /// Deliberate: while a wind is not valid only the angle of the tracked side moves, as the other has nothing
  /// to follow from.
  bool TrackSteerTo(float change);

  /// Takes a bearing [deg magnetic, any turn], folded. One that is not finite changes nothing.
  void SetAutoPilot(double bearing);

  /// Takes a desired angle [deg relative, any turn], folded. One that is not finite changes nothing.
  void SetDesired(TrackSide side, double angle);

  /// Withdraws the alarm; true when there was one.
  bool WithdrawAlarm() { return std::exchange(m_alarmActive, false); }

  TrackSide Side() const { return m_side; }
  void Side(TrackSide side) { m_side = side; }

  /// What the latest StartTracking that succeeded took from the settings; later settings wait for the next.
  const TrackTuning& Tuning() const { return m_tuning; }
  double TrackIntegral() const { return m_controller.Integral(); }
  double TrackGainIntegral() const { return m_controller.Gains().Integral; }
  double TrackGainProportional() const { return m_controller.Gains().Proportional; }
  /// The bearing after the latest pass in a mode other than Off [deg magnetic].
  float PreviousAutoPilot() const { return m_previousAutoPilot; }

 private:
  float& Desired(TrackSide side) { return m_settings.DesiredAngle[static_cast<std::size_t>(side)]; }
  /// The time since the pass before [s, at least 0]; 0 at the first one.
  double Elapsed(const Moment& now);
  void Control(float error, const Moment& now);
  void TurnHeldWind(float change);
  LoopStep::Alarm TestAlarm(float error);

  Settings& m_settings;
  const InstrumentData& m_data;
  TrackSide m_side = TrackSide::Apparent;
  TrackTuning m_tuning;
  TrackController m_controller;
  std::optional<Moment> m_stepped;  ///< the pass before; nothing at the first one of a tracking
  float m_previousAutoPilot = 0.0F;
  bool m_alarmActive = false;
};

}  // namespace veerwatch
