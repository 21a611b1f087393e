// "Sail the Course": holds the leg to a mark that a polar finds best in Track, prompts for the turn to the
// other one, and makes it with the program's turn. The pilot stays with Track and with that turn; whoever
// else takes it, or changes what is held, ends the course.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "helm/Helm.h"
#include "tack/CourseSail.h"
#include "tack/TackSettings.h"
#include "tack/TurnRun.h"

namespace veerwatch {

/// Why the course is over, or cannot begin.
enum class CourseEnd {
  ByUser,
  Reached,    ///< the mark is closer than CourseRun::kReached
  NoMark,     ///< no course is chosen, or its waypoint is gone
  OtherMark,  ///< the mark stands somewhere else at once
  NoTrack,    ///< another mode, or somebody else's turn
  NoWind,
  NoHeading,
  NoOutput,
  NoPolar,     ///< the polar makes no way to the mark
  OtherAngle,  ///< somebody else has set an angle
  OtherSide,   ///< the user has chosen the other wind
  PolarAngle,  ///< the user has chosen the polar angle
  TurnEnded,   ///< the turn to the other leg was stopped, or could not go on
};

/// "Mark Reached", "No Waypoint", ...; "" for ByUser.
std::string_view CourseEndText(CourseEnd why);

/// Where a course leads at one moment.
struct CourseMark {
  double Bearing = 0.0;         ///< [deg magnetic]
  std::optional<double> Range;  ///< [nm]; nothing for a bearing alone
};

class CourseRun final : private HelmObserver {
 public:
  static constexpr double kReached = 0.1;  ///< [nm]
  /// The turn is prompted for from so long before the line [s].
  static constexpr double kPromptFrom = 60.0;
  /// "Tack By Itself" waits until the prompt has stood for so long [s].
  static constexpr double kWarned = 10.0;

  /// Whom the run asks and tells. Everything outlives it.
  struct Parts {
    Settings& Set;
    Helm& Boat;
    TurnRun& Turn;
    std::function<std::optional<CourseMark>()> Mark;  ///< where the course leads now
    MarkLegsSource Legs;
    std::function<TackSettings()> Turns;         ///< overshoot and rate, as the user has set them
    std::function<bool()> ByItself;              ///< it tacks without being asked
    std::function<void(const TurnPlan&)> Begin;  ///< begins a turn
    std::function<void()> Changed;               ///< something about the run is another
    std::function<void()> Prompts;               ///< a prompt begins, or the turn is due
    std::function<void(CourseEnd)> Ended;
  };
  explicit CourseRun(Parts parts);

  /// Begins; why it cannot, or nothing.
  std::optional<CourseEnd> Begin();
  /// Ends it with `why`, where it runs.
  void End(CourseEnd why);

  bool Running() const { return m_runs; }
  /// It waits for the turn to the other leg.
  bool Turning() const { return m_turning; }

  /// What is said while it runs: "Port tack, 42 degrees, mark 2.3 nm"; "" else.
  const std::string& Line() const { return m_line; }
  /// "In 45 s: Tack now (Enter)", "Tack now (Enter)", "Jibe now (Enter), 8 degrees past the line"; "" while
  /// there is nothing to prompt for.
  const std::string& Prompt() const { return m_prompt; }
  /// The prompt's turn is due.
  bool Due() const { return m_due; }
  /// Which turn the prompt is for.
  ManoeuvreKind PromptKind() const { return m_answer.Turn; }

  /// The turn of the prompt, while there is one, as it would begin now.
  TurnPlan Plan() const;
  /// Makes it; the caller has asked what is to be asked. Nothing where none is prompted for or it is refused.
  void TurnNow();

 private:
  void OnTick() override;
  void OnTrackMode(TrackMode mode) override;
  void OnTrackSide(TrackSide side) override;
  void OnTurnEnds(TurnFate why) override;

  /// What is lost; nothing while all is there.
  std::optional<CourseEnd> Lost(const HelmNow& now) const;
  bool Jumps(const CourseMark& mark) const;
  /// False where the polar has no answer.
  bool Sail(const HelmNow& now, const CourseMark& mark);
  /// Holds `angle` of the true wind, or what it comes to on the tracked side [deg relative].
  void Hold(double angle);
  double Held() const;
  double OnSide(double angle) const;
  void ShowPrompt();
  void ShowLine(const CourseMark& mark);
  void TurnByItself();

  Parts m_parts;
  CourseSail m_sail;
  CourseSail::Answer m_answer;
  bool m_runs = false;
  bool m_turning = false;
  std::optional<CourseMark> m_mark;  ///< at the second before
  TrackSide m_side = TrackSide::Apparent;
  double m_held = 0.0;       ///< what the run, or nobody, has changed [deg relative]
  bool m_due = false;        ///< the prompt's turn is
  double m_prompted = 0.0;   ///< the prompt stands for so long [s]
  std::uint64_t m_sent = 0;  ///< sentences at the second before
  int m_silent = 0;          ///< seconds without one
  std::string m_line;
  std::string m_prompt;
  HelmObservers::Membership m_told;
};

}  // namespace veerwatch
