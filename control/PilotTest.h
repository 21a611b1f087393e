// A test of the pilot: a bearing 10 degrees to starboard, and back, while the headings are written down; then
// how long the boat takes, how fast she turns, and what the pilot's compass is off. It knows no window and no
// clock: whoever has the pilot gives it headings and ticks, sends its bearing, and ends it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "control/PilotFollow.h"

namespace veerwatch {

/// What a test has found.
struct PilotTestResult {
  FollowVerdict Verdict = FollowVerdict::Unknown;
  /// Until she has made about two thirds of the turn [s, (0, 34]]; nothing where she made too little of it.
  std::optional<double> Lag;
  double Made = 0.0;    ///< of the turn, in the direction that was asked for [deg]; 0 where it was cut short
  double Rate = 0.0;    ///< in its first three seconds, or the fastest ones [deg/s]
  double Offset = 0.0;  ///< what the pilot's compass shows more [deg, (-180, 180]]
};

class PilotTest {
 public:
  static constexpr double kTurn = 10.0;                       ///< [deg, to starboard]
  static constexpr std::int64_t kListens = 10000;             ///< to the heading before the turn [ms]
  static constexpr std::int64_t kLeg = 40000;                 ///< for the turn, and for the way back [ms]
  static constexpr std::int64_t kMost = kListens + 2 * kLeg;  ///< that it takes [ms]

  enum class Stage {
    Idle,
    Listens,  ///< to the heading on the bearing of before
    Out,      ///< the bearing is 10 degrees to starboard
    Back,     ///< it is the one of before again
    Done,
  };

  /// Begins with `bearing`, the one that is sent [deg magnetic], at `moment` [ms of the steady clock].
  void Begin(float bearing, std::int64_t moment);
  /// A heading has come [deg magnetic].
  void Heading(float heading, std::int64_t moment);
  /// Time has passed; the stage may be the next one.
  void Tick(std::int64_t moment);
  /// It is over without a result.
  void Stop() { m_stage = Stage::Idle; }

  Stage At() const { return m_stage; }
  bool Runs() const { return m_stage != Stage::Idle && m_stage != Stage::Done; }
  /// To be sent now [deg magnetic, [0, 360)].
  float Bearing() const;
  /// The one of before [deg magnetic].
  float Before() const { return m_before; }
  /// Of the whole test [0, 1].
  double Progress(std::int64_t moment) const;
  /// Once it is Done.
  const PilotTestResult& Result() const { return m_result; }

 private:
  /// The seconds at the end of a stage, in which the boat is taken to rest.
  static constexpr std::size_t kRests = 8;
  static constexpr std::size_t kSeconds = static_cast<std::size_t>(kLeg / 1000);

  /// By the seconds from kRests before the bearing was changed on.
  using Curve = std::array<double, kRests + kSeconds>;

  /// The headings of one stage, by its seconds.
  struct Leg {
    std::array<double, kSeconds> Sum{};  ///< [deg, on any turn]
    std::array<int, kSeconds> Count{};

    void Add(double heading, std::int64_t since);
    /// The mean of the seconds from `begin` to before `end` [deg]; nothing where none has come.
    std::optional<double> Mean(std::size_t begin, std::size_t end) const;
  };

  /// The headings of the stage that runs.
  Leg& Now();
  void Next(Stage stage, std::int64_t moment);
  /// She turns so far, and not as asked, that it goes no further.
  bool RunsAway(std::int64_t moment) const;
  void Conclude();
  /// What she has made of the turn, both ways together [deg].
  Curve BothWays(double start, double end) const;
  /// Lag, rate and verdict of a turn that was made.
  void Measure(const Curve& curve);
  /// How well a curve of a delay and a lag [s] fits.
  struct Fit {
    double Height = 0.0;  ///< [deg]
    double Misses = 0.0;  ///< sum of the squares
  };
  static Fit FitOf(const Curve& curve, double delay, double lag);

  Stage m_stage = Stage::Idle;
  float m_before = 0.0F;
  std::int64_t m_since = 0;         ///< when the stage began [ms]
  std::int64_t m_begun = 0;         ///< when the test began [ms]
  std::optional<double> m_heading;  ///< the latest [deg, on any turn]
  bool m_came = false;              ///< she made enough of the way out
  Leg m_listens;
  Leg m_out;
  Leg m_back;
  PilotTestResult m_result;
};

}  // namespace veerwatch
