#include "tests/closedloop/SailedCourse.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "app/MarkLegsOf.h"
#include "platform/Angles.h"
#include "polar/CourseTargets.h"
#include "tests/closedloop/Passage.h"
#include "tests/support/HandTimer.h"

namespace veerwatch {

namespace {

constexpr double kMinute = 60.0;
constexpr double kSecondsInHour = 3600.0;
constexpr double kMost = 4.0;  // times the shortest time

double Apart(double from, double to) { return std::remainder(to - from, 360.0); }

/// The boat's own polar, in steps of 5 degrees and of 2 knots of wind.
PolarTable PolarOf(const BoatSettings& boat) {
  constexpr int kAngles = 36;
  constexpr int kWinds = 15;
  PolarTable table;
  table.PolarRows(0) = kAngles;
  table.PolarColumns(0) = kWinds;
  for (int row = 1; row <= kAngles; ++row) {
    table.Value(0, row, 0) = 5.0F * static_cast<float>(row);
    for (int column = 1; column <= kWinds; ++column) {
      table.Value(0, 0, column) = 2.0F * static_cast<float>(column);
      table.Value(0, row, column) = ToSingle(BoatPolarSpeed(boat, 5.0 * row, 2.0 * column));
    }
  }
  table.Smooth(true);
  return table;
}

BoatSettings BoatOf(const CourseCase& what) {
  BoatSettings boat = what.Boat;
  boat.WindPeriod = 1.0 / what.WindRate;
  boat.HeadingPeriod = 0.1;
  return boat;
}

class Sailed {
 public:
  explicit Sailed(const CourseCase& what)
      : m_case(what),
        m_boat(BoatOf(what)),
        m_passage(m_boat, m_boat.WindFrom - m_boat.Variation - static_cast<double>(what.Angle), what.Seed),
        m_polar(PolarOf(m_boat)),
        m_turn(m_passage.TheHelm(), m_timer, m_passage.Time()),
        m_run({m_passage.Set, m_passage.TheHelm(), m_turn, [this] { return Mark(); },
               [this](const MarkAsk& ask) { return MarkLegsOf(m_polar, ask); }, [] { return TackSettings{}; },
               [this] { return m_case.ByItself; }, [this](const TurnPlan& plan) { Begin(plan); }, [] {},
               [] {}, [this](CourseEnd why) { m_ended = why; }}) {
    m_timer.OnTick = [this] { m_turn.Tick(); };
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
    m_passage.Sail(kMinute);
    m_passage.Boat.PutWaypoint(m_boat.WindFrom + what.MarkOff, what.Distance);
    m_passage.Sail(2.0);
  }

  CourseResult Result() {
    m_result.Shortest = Shortest();
    m_result.Nearest = m_case.Distance;
    if (const auto why = m_run.Begin()) {
      m_result.End = *why;
      return m_result;
    }
    double seconds = 0.0;
    while (!m_ended && seconds < kMost * m_result.Shortest * kSecondsInHour + kMinute) {
      if (m_case.ShiftAt > 0.0 && seconds == m_case.ShiftAt) {
        m_passage.Boat.Set().WindFrom += m_case.Shift;
      }
      Second();
      seconds += 1.0;
    }
    m_result.End = m_ended.value_or(CourseEnd::ByUser);
    m_result.Reached = m_ended == CourseEnd::Reached;
    m_result.Hours = seconds / kSecondsInHour;
    return m_result;
  }

 private:
  void Second() {
    const double before = m_passage.Boat.State().Heading;
    double astern = 0.0;
    m_passage.Sail(1.0, [&] {
      const double held =
          static_cast<double>(m_passage.Set.DesiredAngle[static_cast<std::size_t>(m_case.Side)]);
      astern += m_passage.Boat.State().ApparentAngle * held < 0.0 ? BoatModel::kTick : 0.0;
    });
    if (m_turn.Running()) {
      m_turned += (m_turn.Made().Change < 0.0 ? -1.0 : 1.0) * Apart(before, m_passage.Boat.State().Heading);
      m_result.Back = std::max(m_result.Back, -m_turned);
    } else {
      m_result.Astern += astern;
    }
    m_timer.Tick();
    m_result.Nearest = std::min(m_result.Nearest, m_passage.Boat.Waypoint().Range);
    // What is not turned by itself is answered, too, though not at once.
    constexpr int kAnswers = 20;  // [s]
    m_due = m_run.Due() ? m_due + 1 : 0;
    if (m_due > (m_case.ByItself ? kAnswers : 0)) {
      m_run.TurnNow();
    }
  }

  void Begin(const TurnPlan& plan) {
    m_turned = 0.0;
    ++(plan.Kind == ManoeuvreKind::Tack ? m_result.Tacks : m_result.Jibes);
    m_turn.Begin(plan, TurnEngine::kUsualLimit);
  }

  std::optional<CourseMark> Mark() {
    const InstrumentData& data = m_passage.TheHelm().Data();
    if (!data.WaypointValid) {
      return std::nullopt;
    }
    return CourseMark{static_cast<double>(data.WaypointBearing), static_cast<double>(data.WaypointRange)};
  }

  double Shortest() const {
    const float wind = ToSingle(m_boat.WindSpeed);
    const CourseQuery query{FoldBearing(-static_cast<double>(m_case.Angle)), FoldBearing(m_case.MarkOff),
                            m_case.Angle, wind};
    return m_case.Distance / static_cast<double>(CourseTargets(m_polar, query).Best);
  }

  const CourseCase& m_case;
  BoatSettings m_boat;
  Passage m_passage;
  PolarTable m_polar;
  HandTimer m_timer;
  TurnRun m_turn;
  std::optional<CourseEnd> m_ended;
  double m_turned = 0.0;
  int m_due = 0;  ///< for so long [s]
  CourseResult m_result;
  CourseRun m_run;
};

}  // namespace

CourseResult SailCourse(const CourseCase& what) { return Sailed(what).Result(); }

}  // namespace veerwatch
