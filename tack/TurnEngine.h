// A turn that is followed until the boat is really there: turns the pilot's bearing step by step, waits for
// the pilot and for the boat, eases the overshoot out, and says where it stands. It knows no window, no port
// and no clock; TurnRun drives it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "control/Supervisor.h"
#include "helm/HelmNow.h"
#include "tack/TurnPlan.h"

namespace veerwatch {

enum class TurnStage {
  Turning,  ///< bow or stern comes to the wind; without a crossing the whole way
  Through,  ///< it is through, and the boat goes on to the end of the overshoot
  Easing,   ///< back to where the turn ends, until the boat is there
  Done,
};

/// What the engine is told of the helm at each step.
struct TurnSense {
  std::optional<float> Heading;  ///< at present [deg magnetic]; nothing when it is not known any more
  std::optional<float> Wind;     ///< true wind angle, averaged [deg relative]
  bool OutputOpen = false;
  std::uint64_t Sent = 0;    ///< sentences that have left for the pilot
  float SentBearing = 0.0F;  ///< of the latest one that was made [deg magnetic]
};
TurnSense TurnSenseOf(const HelmNow& now);

class TurnEngine {
 public:
  /// The longest that a stage takes [s].
  static constexpr float kUsualLimit = 60.0F;

  /// The turn begins with its heading known. `limit` is the longest that a stage may take [s, above 0]; where
  /// the rate alone needs more than half of it, twice what the rate needs.
  void Begin(const TurnPlan& plan, const TurnSense& sense, double limit);

  /// `passed` is the time since the step before [s, at least 0]; a step of about a second is meant, and what
  /// is longer than two counts as two. The bearing moves only when the one before has left for the pilot, and
  /// never farther than 90 degrees ahead of the boat: a pilot that takes the shorter way never turns her the
  /// other way round. Answers GoesOn, or why the turn cannot go on.
  TurnFate Step(const TurnSense& sense, double passed);

  TurnStage Stage() const { return m_stage; }
  /// "Turning: 34 of 46 degrees", "Through the wind: 60 of 97 degrees", "Easing: 5 degrees to go", "Done: 92
  /// degrees".
  std::string StageText() const;
  /// The bearing for the pilot now [deg magnetic, [0, 360)], with the pilot's own offset as at the start.
  float Bearing() const { return BearingAt(m_progress); }
  /// The latest one that has left for the pilot.
  float BearingSent() const { return BearingAt(m_heard); }
  /// What the boat has turned [deg, positive in the turn's direction].
  double Turned() const { return m_turned; }
  /// What she has to turn to where the turn ends [deg, at least 0].
  double Whole() const { return m_whole; }

 private:
  float BearingAt(double progress) const;
  void Follow(const TurnSense& sense, double seconds);
  /// Takes what has left for the pilot; true when the next step may be made.
  bool Hear(const TurnSense& sense, double seconds);
  bool WindIsAcross(const TurnSense& sense) const;
  /// The bearing has stood for some seconds without the boat coming closer, not far from `end` [deg].
  bool Rests(double end) const;
  /// Corrects the bearing by the wind angle that is missing, once the overshoot is eased out.
  void Ease(const TurnSense& sense, double seconds);
  bool Arrived(const TurnSense& sense, double seconds);
  void LookAtStage(const TurnSense& sense, double seconds);
  void Enter(TurnStage stage);
  double Goal() const { return m_stage == TurnStage::Easing ? m_whole + m_lean : m_past; }

  TurnPlan m_plan;
  double m_limit = 0.0;  ///< of a stage [s]
  double m_side = 1.0;   ///< 1 to starboard, -1 to port
  // All in degrees in the turn's direction.
  double m_whole = 0.0;     ///< to where it ends
  double m_past = 0.0;      ///< with the overshoot
  double m_pushed = 0.0;    ///< added to it, since the wind was not across
  double m_crossing = 0.0;  ///< where bow or stern is in the wind
  double m_progress = 0.0;  ///< of the bearing
  double m_heard = 0.0;     ///< of what has left
  double m_turned = 0.0;    ///< by the boat
  double m_lean = 0.0;      ///< by which the bearing is corrected while easing
  double m_off = 0.0;       ///< wind angle that is missing, smoothed
  bool m_easedOut = false;  ///< the overshoot is
  double m_nearest = 0.0;   ///< the closest that she came to the goal of the stage

  TurnStage m_stage = TurnStage::Turning;
  double m_inStage = 0.0;   ///< [s]
  double m_standing = 0.0;  ///< bearing and boat have come no closer for so long [s]
  double m_there = 0.0;     ///< she has been near the end for so long [s]
  double m_silent = 0.0;    ///< nothing has left for so long [s]
  float m_heading = 0.0F;   ///< at the latest step [deg magnetic]
  std::uint64_t m_sent = 0;
};

}  // namespace veerwatch
