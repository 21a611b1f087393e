#include "tests/closedloop/Turning.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "tack/TurnRun.h"
#include "tests/closedloop/Passage.h"
#include "tests/support/HandTimer.h"

namespace veerwatch {

namespace {

constexpr double kMinute = 60.0;
constexpr double kLongest = 300.0;  // [s]

double Apart(double from, double to) { return std::remainder(to - from, 360.0); }

BoatSettings BoatOf(const TurnCase& what) {
  BoatSettings boat = what.Boat;
  boat.Pilot.BearingLag = what.Lag;
  boat.TurnLag = what.Lag;
  boat.WindPeriod = 1.0 / what.WindRate;
  boat.HeadingPeriod = 0.1;
  return boat;
}

/// A boat that tracks, and the turn that she makes.
class Turned {
 public:
  explicit Turned(const TurnCase& what)
      : m_case(what),
        m_boat(BoatOf(what)),
        m_passage(m_boat, m_boat.WindFrom - m_boat.Variation - static_cast<double>(what.Angle), what.Seed),
        m_run(m_passage.TheHelm(), m_timer, m_passage.Time()) {
    m_timer.OnTick = [this] { m_run.Tick(); };
    Settings& set = m_passage.Set;
    set.m_iNmeaHeading = 0;
    set.m_iNmeaBoatSpeed = 0;
    set.m_fTrackBandwidth = what.Bandwidth;
    what.Method.Use(set);
    const double offset = m_boat.Rudder ? m_boat.Pilot.CompassOffset : 0.0;
    m_passage.TheHelm().Loop().SetAutoPilot(static_cast<double>(set.m_fAutoPilot) + offset);
    m_passage.Sail(5.0);
    m_passage.TheHelm().Modes().TrackSetManual();
    m_passage.Sail(kMinute);
    m_passage.Track(what.Side);
    m_passage.TheHelm().Loop().SetDesired(what.Side, static_cast<double>(what.Angle));
    m_passage.Sail(4.0 * kMinute);
  }

  TurnResult Result() {
    TurnAsk ask;
    ask.Kind = std::fabs(m_case.Angle) > 90.0F ? ManoeuvreKind::Jibe : ManoeuvreKind::Tack;
    ask.Overshoot = m_case.Overshoot;
    ask.Rate = m_case.Rate;
    const TurnPlan plan = m_run.Plan(ask);
    if (!plan.Refusal.empty()) {
      return m_result;
    }
    m_side = plan.Change < 0.0 ? -1.0 : 1.0;
    m_heading = m_passage.Boat.State().Heading;
    m_result.Planned = std::fabs(plan.Change);
    if (m_case.Turns) {
      m_run.Begin(plan, TurnEngine::kUsualLimit);
    }
    while (m_run.Running() && m_result.Seconds < kLongest) {
      const double before = Bearing();
      Sail(1.0, [] {});
      m_timer.Tick();
      m_result.Seconds += 1.0;
      m_result.Jump = std::fabs(Apart(before, Bearing()));
    }
    m_result.Done = m_passage.Set.m_eTrackMode == TrackMode::Track;
    const double before = Bearing();
    double shown = 0.0;
    double real = 0.0;
    double ticks = 0.0;
    Sail(1.0, [] {});
    m_result.Jump = std::fabs(Apart(before, Bearing()));
    Sail(kMinute - 1.0, [&] {
      shown += m_passage.ShownError();
      real += m_passage.RealError();
      ticks += 1.0;
      m_result.InTheWind += std::fabs(m_passage.Boat.State().TrueAngle) < 20.0 ? BoatModel::kTick : 0.0;
    });
    m_result.Shown = shown / ticks;
    m_result.Real = real / ticks;
    return m_result;
  }

 private:
  double Bearing() const { return static_cast<double>(m_passage.Set.m_fAutoPilot); }

  template <class Each>
  void Sail(double seconds, Each each) {
    m_passage.Sail(seconds, [&] {
      const double heading = m_passage.Boat.State().Heading;
      m_result.Turned += m_side * Apart(m_heading, heading);
      m_heading = heading;
      m_result.Back = std::max(m_result.Back, -m_result.Turned);
      each();
    });
  }

  const TurnCase& m_case;
  BoatSettings m_boat;
  Passage m_passage;
  HandTimer m_timer;
  TurnRun m_run;
  double m_side = 1.0;
  double m_heading = 0.0;
  TurnResult m_result;
};

}  // namespace

TurnResult SailTurn(const TurnCase& what) { return Turned(what).Result(); }

std::vector<TurnCase> TurnCases(const TurnCase& what, int seeds, bool jibes) {
  constexpr std::array<double, 5> kLags{1.0, 2.0, 4.0, 6.0, 8.0};
  constexpr std::array<Sea, 5> kSeas{Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head};
  std::vector<TurnCase> cases;
  for (int seed = 0; seed < seeds; ++seed) {
    TurnCase one = what;
    const auto at = static_cast<std::size_t>(seed);
    one.Lag = kLags[at % kLags.size()];
    one.Boat.Sea = one.Boat.Rudder ? SeaOf(kSeas[at / kLags.size() % kSeas.size()]) : one.Boat.Sea;
    one.Side = at / 25 % 2 == 0 ? TrackSide::True : TrackSide::Apparent;
    const float size = jibes ? (one.Side == TrackSide::True ? 150.0F : 140.0F)
                             : (one.Side == TrackSide::True ? 45.0F : 35.0F);
    one.Angle = at / 50 % 2 == 0 ? size : -size;
    one.Seed = what.Seed + at;
    cases.push_back(one);
  }
  return cases;
}

TurnSummary SummaryOf(const std::vector<TurnResult>& results) {
  TurnSummary summary;
  std::vector<double> off;
  for (const TurnResult& one : results) {
    ++summary.Count;
    summary.Done += one.Done ? 1 : 0;
    summary.Within += one.Done && std::fabs(one.Shown) <= 2.0 ? 1 : 0;
    summary.WithinReal += one.Done && std::fabs(one.Real) <= 2.0 ? 1 : 0;
    summary.WrongWay += one.Back > 30.0 || std::fabs(one.Turned - one.Planned) > 90.0 ? 1 : 0;
    summary.InTheWind += one.InTheWind > 0.0 ? 1 : 0;
    summary.Longest = std::max(summary.Longest, one.Seconds);
    summary.Jump = std::max(summary.Jump, one.Jump);
    off.push_back(std::fabs(one.Shown));
  }
  std::sort(off.begin(), off.end());
  summary.Median = off.empty() ? 0.0 : off[off.size() / 2];
  summary.NineOfTen = off.empty() ? 0.0 : off[off.size() * 9 / 10];
  return summary;
}

}  // namespace veerwatch
