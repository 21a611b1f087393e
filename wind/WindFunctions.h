// What Track does besides holding an angle, each where the user has chosen it: the angle guard, the shift
// alarm, the side by itself, the polar's angle; and the dodges. Asked before and after each pass of the loop.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "control/PassTime.h"
#include "control/TrackLoop.h"
#include "control/Watch.h"
#include "instruments/InstrumentRecord.h"
#include "settings/Settings.h"
#include "wind/AngleGuard.h"
#include "wind/HeldAngles.h"
#include "wind/PolarAngle.h"
#include "wind/ShiftCheck.h"

namespace veerwatch {

/// What a wind function has to say once.
enum class WindSays {
  GuardHolds,   ///< the held angle was beyond the guard's limit and is on it now
  PolarEdge,    ///< the polar's best angle lies at the edge of its table, and that is held
  PolarNone,    ///< the polar has no best angle: the function is off
  PolarByHand,  ///< the user has set an angle: the function is off
};

class WindFunctions {
 public:
  /// Everything outlives this.
  WindFunctions(Settings& settings, const InstrumentRecord& record, const Watch& watch, TrackLoop& loop)
      : m_settings(settings), m_record(record), m_watch(watch), m_loop(loop) {}

  /// Where the polar's angle comes from; none by itself.
  void Polar(BestCourseSource source) { m_polarSource = std::move(source); }

  /// What the helm has to tell.
  struct Did {
    bool Side = false;     ///< the other side is tracked now
    bool Desired = false;  ///< what is held was changed
    std::optional<WindSays> Says;
  };
  /// Before a pass of the loop, in any mode.
  Did Before(const LoopInput& input);
  /// After it: the bearing that it leads to, within the guard; `step` says so.
  void After(const LoopInput& input, LoopStep& step);

  // Each is true when it changed what is held and the bearing; only in Track.

  /// Steers off by `degrees` [deg, positive to starboard] until DodgeBack(), but not through bow or stern.
  bool Dodge(double degrees);
  /// Back to the angle before the dodges.
  bool DodgeBack();
  /// To the angle before the latest change of more than ten degrees.
  bool LastAngle();
  /// Holds `angle` of the tracked side [deg relative] for a course that is sailed, which is no change by the
  /// user; `turns` takes the bearing along.
  bool CourseHolds(double angle, bool turns);
  bool CanDodgeBack() const { return Tracks() && m_angles.Away().has_value(); }
  bool CanLastAngle() const { return Tracks() && m_angles.Last().has_value(); }

  /// The polar's angle, as of the latest pass.
  const PolarAngle& PolarNow() const { return m_polar; }
  /// Puts what guard and shift alarm have found at `now` into what the watch has to know.
  void Report(const Moment& now, Watch::Around& around) const;
  /// What the guard kept the boat from, in the last ten seconds.
  AngleGuard::Risk Risk(const Moment& now) const;
  /// The shift that stands [deg, positive to starboard].
  std::optional<double> Shift() const;

 private:
  bool Tracks() const { return m_settings.m_eTrackMode == TrackMode::Track; }
  AngleGuard::Limits GuardLimits() const;
  float Held(TrackSide side) const { return m_settings.DesiredAngle[static_cast<std::size_t>(side)]; }
  HeldAngles::Angle Held() const;
  bool HeadingFresh(const Moment& now) const;
  void Feed(const LoopInput& input);
  void FollowUser(Did& did);
  void ChooseSide(const Moment& now, Did& did);
  void StepPolar(double seconds, Did& did);
  void KeepHeld(Did& did);
  /// Turns the boat and what is held; the angles before and after.
  bool Turn(double degrees);

  Settings& m_settings;
  const InstrumentRecord& m_record;
  const Watch& m_watch;
  TrackLoop& m_loop;
  BestCourseSource m_polarSource;
  AngleGuard m_guard;
  ShiftCheck m_shift;
  PolarAngle m_polar;
  HeldAngles m_angles;
  PassTime m_winds;
  PassTime m_corrections;
  PassTime m_passes;
  bool m_feeds = false;                      ///< guard and shift are fed
  bool m_tracked = false;                    ///< at the latest pass
  bool m_polarOn = false;                    ///< at the latest pass
  std::optional<bool> m_edge;                ///< whether the polar's edge was told
  std::optional<HeldAngles::Angle> m_known;  ///< what is held, as far as these functions know
  double m_guarded = 0.0;                    ///< what the guard has corrected in the last seconds [deg]
  AngleGuard::Risk m_risk = AngleGuard::Risk::None;
  std::int64_t m_riskAt = 0;  ///< [ms of the steady clock]
};

}  // namespace veerwatch
