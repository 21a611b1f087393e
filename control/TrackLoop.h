// The control loop: holds the desired wind angle by correcting the autopilot bearing at every pass.
#pragma once

#include <optional>
#include <utility>

#include "control/BearingLimits.h"
#include "control/PassTime.h"
#include "control/TrackClock.h"
#include "control/TrackController.h"
#include "control/TrackDirection.h"
#include "control/WindMean.h"
#include "control/WindRate.h"
#include "instruments/InstrumentData.h"
#include "platform/Clock.h"
#include "settings/Settings.h"
#include "settings/TrackMode.h"

namespace veerwatch {

/// What a loop is tuned with.
struct TrackTuning {
  float Bandwidth = 0.0F;  ///< [s]
  float Damping = 0.0F;
  TrackMethod Method = TrackMethod::Sentence;
};

/// What a pass of the loop works on besides the record.
struct LoopInput {
  /// A wind that came at `now`, for both sides.
  LoopInput(const Moment& now) : Now(now) {}  // NOLINT(google-explicit-constructor): a pass is mostly that

  Moment Now;
  bool BringsApparent = true;  ///< this wind is an apparent one
  bool BringsTrue = true;      ///< a true one came with it, or follows from it
  bool HeadingFresh = true;    ///< the record's heading is of the last seconds
  bool Stands = false;         ///< neither bearing nor accumulators move
  /// The true wind before it was smoothed, where the record's is [deg relative], [kn].
  struct Wind {
    float Angle = 0.0F;
    float Speed = 0.0F;
  };
  std::optional<Wind> TrueWind;
};

/// What one pass of the loop did, for whoever sends and tells.
struct LoopStep {
  bool Ran = false;            ///< the mode has passes
  bool Followed = false;       ///< the desired angles follow the wind
  float DeltaApparent = 0.0F;  ///< error of the apparent wind angle [deg, (-180, 180]]
  float DeltaTrue = 0.0F;      ///< the same for the true wind
  bool Tracked = false;        ///< the controller corrected the bearing
  float Error = 0.0F;          ///< what it worked on [deg]
  double Seconds = 0.0;        ///< since the pass before, as far as the law counts them [s]
  float Correction = 0.0F;     ///< of the bearing [deg, (-180, 180]]
  bool ByRate = false;         ///< the fastest change of the bearing bounded it
  bool ByAhead = false;        ///< the largest distance from the heading bounded it
  bool ByGuard = false;        ///< the angle guard bounded it
  bool Sends = false;          ///< the bearing is for the pilot
  enum class Alarm { AsBefore, Raised, Over };
  float AlarmError = 0.0F;        ///< what the alarm tested [deg]
  Alarm Rings = Alarm::AsBefore;  ///< Raised at every pass at which the error is beyond the limit
};

class TrackLoop {
 public:
  /// Everything outlives this.
  TrackLoop(Settings& settings, const InstrumentData& data) : m_settings(settings), m_data(data) {}

  /// Whether the settings give gains, or where they need none, a time constant and limits.
  bool CanTrack() const;
  /// Whether the method of the settings needs a heading and there is none of the last seconds.
  bool LacksHeading() const;

  /// Takes method, gains and limits from the settings and begins anew with them: empty accumulators. False,
  /// with nothing changed, where it cannot track. But for Sentence, and from another mode than Track, what is
  /// held is the wind of the last ten seconds, and a bearing far off the heading begins at the heading.
  /// With any method `angle` [deg relative, any turn], where given, is held on the tracked side instead, and
  /// the bearing stays as it is: so a turn hands over.
  bool StartTracking(const std::optional<float>& angle = std::nullopt);

  /// One pass over the record by the present mode.
  /// Deliberate: Sentence limits no correction, and an error equal to the alarm limit raises no alarm.
  LoopStep ControlStep(const LoopInput& input);

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
  /// While another method than Sentence tracks, the angle of the last ten seconds is held from now on: true
  /// when that changed what is held.
  bool Side(TrackSide side);

  /// Tracks the other side from now on, as far off its angle of the last ten seconds as it was off this
  /// side's: the bearing does not jump. False, with nothing changed, while one of the winds has not come.
  bool FollowSide(TrackSide side);

  /// The angle of the last ten seconds in which that wind came [deg relative].
  std::optional<double> MeanAngle(TrackSide side) const;

  /// The apparent angle of the last ten seconds is held from now on, with any method. False where that cannot
  /// be, as no apparent wind came.
  bool HoldApparent();
  /// The bearing begins anew at `heading` [deg magnetic, any turn], with nothing added up.
  void BeginAt(double heading);
  /// Holds the boat `degrees` [deg, at least 0] closer to the wind than the held angle, from now on; 0 for
  /// that angle again. The bearing goes along at once when it begins.
  void Luff(double degrees);
  bool Luffs() const { return m_luff != 0.0; }

  /// What the latest StartTracking that succeeded took from the settings; later settings wait for the next.
  const TrackTuning& Tuning() const { return m_tuning; }
  /// That of the tracking, or until it begins that of the settings.
  TrackMethod Method() const;
  double TrackIntegral() const { return m_controller.Integral(); }
  double TrackGainIntegral() const { return m_controller.Gains().Integral; }
  double TrackGainProportional() const { return m_controller.Gains().Proportional; }
  /// The bearing after the latest pass in a mode other than Off [deg magnetic].
  float PreviousAutoPilot() const { return m_previousAutoPilot; }
  /// How many passes there are a second, one for each wind sentence [1/s]; nothing while too few have come.
  std::optional<double> WindsASecond() const { return m_windRate.Rate(); }

 private:
  float& Desired(TrackSide side) { return m_settings.DesiredAngle[static_cast<std::size_t>(side)]; }
  void Listen(const LoopInput& input);
  /// The angle of the last ten seconds is held from now on; false where none came.
  bool HoldMean(TrackSide side);
  std::optional<double> Heading(const LoopInput& input) const;
  /// That of the tracking, or until it begins that of the settings [s, above 0].
  double DirectionBandwidth() const;
  /// Corrects the bearing for `error` [deg], by the method; keeps in `step` what it did.
  void Control(float error, const LoopInput& input, LoopStep& step);
  void Take(double bearing);
  void Take(const LimitedBearing& limited, LoopStep& step);
  /// Zeroes every accumulator.
  void ForgetErrors();
  void TurnHeldWind(float change);
  LoopStep::Alarm TestAlarm(float error, double seconds);

  Settings& m_settings;
  const InstrumentData& m_data;
  TrackSide m_side = TrackSide::Apparent;
  TrackTuning m_tuning;
  TrackMethod m_method = TrackMethod::Sentence;  ///< of the latest start
  BearingLimits m_limits;
  TrackController m_controller;
  TrackClock m_clock;
  TrackDirection m_direction;
  WindMean m_means[2];            ///< apparent and true
  WindRate m_windRate;            ///< of all passes
  PassTime m_tracked;             ///< between the winds of the tracked side
  PassTime m_winds;               ///< between the winds that feed the direction
  PassTime m_passes;              ///< between all passes
  double m_trueSeconds = 0.0;     ///< since the latest wind that fed the direction [s]
  bool m_headingFresh = true;     ///< at the latest pass
  double m_luff = 0.0;            ///< taken off the held angle [deg relative, with its sign]
  float m_directionError = 0.0F;  ///< the latest error of the direction [deg]
  float m_alarmError = 0.0F;      ///< the error that the alarm tests [deg]
  float m_previousAutoPilot = 0.0F;
  bool m_alarmActive = false;
};

}  // namespace veerwatch
