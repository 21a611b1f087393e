// The watch: knows how old everything is and what is wrong with it, and says so. The helm tells it what
// happens, once it has happened: each sentence, each pass of the loop, each second. It holds nothing up and
// changes nothing; what follows from it is decided in control/WatchAct.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "control/Freshness.h"
#include "control/PilotChecks.h"
#include "control/PilotFollow.h"
#include "control/TrackLoop.h"
#include "control/WatchNow.h"
#include "control/WindChecks.h"
#include "control/WindMean.h"
#include "instruments/InstrumentRecord.h"
#include "settings/Settings.h"

namespace veerwatch {

class Watch {
 public:
  /// What the watch has to know of the moment at which it looks.
  struct Around {
    TrackSide Side = TrackSide::Apparent;        ///< the tracked one
    TrackMethod Method = TrackMethod::Sentence;  ///< in use
    float Bandwidth = 0.0F;                      ///< in use [s]
    std::optional<double> Winds;                 ///< wind sentences a second, where that is known
    bool InputStarted = false;
    bool OutputOpen = true;
    std::optional<int> BaudRate;  ///< of the pilot's line; nullopt where nothing bounds it
    bool Acts = false;            ///< the loop is held back
    std::uint64_t Sent = 0;       ///< sentences that have left for the pilot
    bool Pinching = false;        ///< the angle guard has kept the boat from that
    bool Gybing = false;          ///< and from that
    std::optional<double> Shift;  ///< of the true wind, where one is told [deg, positive to starboard]
    bool Lifts = false;           ///< that shift lifts the boat
  };

  /// Both outlive this.
  Watch(const Settings& settings, const InstrumentRecord& record)
      : m_settings(settings), m_record(record), m_ages(settings) {}

  /// The input starts anew: nothing has come yet.
  void Restart();

  /// A sentence has brought `readings`, and the record still says which of its values that changed.
  void Sentence(const Readings& readings);
  /// The simulator has brought everything at `now`.
  void Simulated(const Moment& now);
  /// The loop has made a pass.
  void Step(const LoopStep& step);
  /// A sentence of `bytes` characters with the bearing of the settings was built at `now`.
  void Built(std::size_t bytes, const Moment& now);
  /// The alarm of the loop was withdrawn.
  void AlarmOver() { m_offCourse.reset(); }

  /// A second has passed, or the mode has changed: looks at everything. True when other conditions stand than
  /// before.
  bool Look(const Around& around, const Moment& now);

  /// What the latest look has found.
  const WatchNow& Now() const { return m_now; }
  const Ages& Values() const { return m_ages; }

  /// The boat speed shows 0 while the boat moves over ground.
  bool SpeedStuck(const Moment& now) const;
  /// The true wind comes from dead astern or across the stern, by the latest look.
  bool GybeRisk() const { return m_gybe; }
  /// By the latest look.
  bool Following() const { return !m_follow.Fails(); }
  bool OutputLost() const { return m_output.Lost(); }
  /// The vane is not stuck.
  bool WindChanges() const { return !m_unchanged.Stands(); }
  /// The latest wind is another one than the one before.
  bool WindJustChanged() const { return m_unchanged.JustChanged(); }
  /// The true wind angle of the last ten seconds in which it came [deg relative], or where none did, the
  /// apparent one's latest.
  std::optional<double> LatestAngle() const;

 private:
  /// A condition that has just been looked at.
  struct Finding {
    bool Stands = false;
    Level Rank = Level::Note;
    Watched Value = Watched::WindApparent;
    double Figure = 0.0;
    std::array<Talker, 2> Talkers{};
    bool Lift = false;
    FollowVerdict Follow = FollowVerdict::Unknown;
  };
  using Findings = std::array<Finding, kConditionCount>;

  void StandstillUntil(const Moment& now);
  void WindCame(const Readings& readings, bool apparent);
  void BoatCame(const Readings& readings);
  void HeadingCame(bool compass, const Moment& now);
  void AddTrueWind(const Moment& now);
  void AddDirection(float angle, float speed, bool apparent, const Moment& now);
  void AgeComputedWind();
  void LookAtPilot(const Around& around, const Moment& now);
  void LookAtStern(const Around& around, const Moment& now);
  void LookAtValues(const Around& around, const Moment& now, Findings& found) const;
  void LookAtSteering(const Around& around, Findings& found) const;
  void LookAtSources(const Moment& now, Findings& found) const;
  /// Keeps what stands, with the moment since when, in its order.
  bool Keep(const Findings& found, const Moment& now);
  bool Sends() const;
  bool Tracks() const { return m_settings.m_eTrackMode == TrackMode::Track; }

  const Settings& m_settings;
  const InstrumentRecord& m_record;
  Ages m_ages;
  UnchangedCheck m_unchanged;
  JumpCheck m_jumps;
  float m_vane = 0.0F;                        ///< the latest angle [deg]
  std::optional<std::int64_t> m_directionAt;  ///< the latest direction that was worked out [ms]
  TalkerCheck m_winds;
  TalkerCheck m_headings;
  TalkerCheck m_boatSpeeds;
  PilotFollow m_follow;
  OutputCheck m_output;
  WindMean m_trueMean;
  std::optional<std::int64_t> m_meanAt;   ///< when it took a wind last [ms of the steady clock]
  std::optional<std::int64_t> m_latest;   ///< the latest call with a moment [ms of the steady clock]
  std::optional<std::int64_t> m_crossed;  ///< the wind is across the stern since then
  bool m_gybe = false;
  std::optional<float> m_offCourse;  ///< error of the alarm that is on [deg]
  float m_groundSpeed = 0.0F;        ///< the latest [kn]
  float m_compass = 0.0F;            ///< the latest [deg magnetic]
  WatchNow m_now;
};

}  // namespace veerwatch
