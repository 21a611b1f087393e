#include "tests/closedloop/Holding.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>

#include "tests/closedloop/Passage.h"

namespace veerwatch {

namespace {

constexpr double kMinute = 60.0;
constexpr double kComesToRest = 5.0 * kMinute;
constexpr double kCounts = 20.0 * kMinute;

BoatSettings BoatOf(const HoldCase& what) {
  BoatSettings boat = HardBoat(what.TheSea);
  boat.Pilot.BearingLag = what.Lag;
  boat.WindPeriod = 1.0 / what.WindRate;
  boat.HeadingPeriod = 1.0 / what.HeadingRate;
  if (what.Alter != nullptr) {
    what.Alter(boat);
  }
  return boat;
}

/// The heading on which the boat has the angle to hold in the mean wind [deg magnetic].
double CourseOf(const BoatSettings& boat, TrackSide side, double angle) {
  BoatSettings calm = boat;
  calm.GustDeviation = 0.0;
  calm.ShiftDeviation = 0.0;
  calm.SwingDeviation = 0.0;
  const double intoTheWind = boat.WindFrom - boat.Variation;
  // Both angles grow with that of the heading off the wind.
  double least = 0.0;
  double most = 180.0;
  while (most - least > 0.01) {
    const double off = (least + most) / 2.0;
    const BoatState state = WireBoat(calm, intoTheWind - off, 1).State();
    const double has = side == TrackSide::Apparent ? state.ApparentAngle : state.TrueAngle;
    (has < angle ? least : most) = off;
  }
  return intoTheWind - least;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t half = values.size() / 2;
  return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2.0;
}

/// The mean of the last ten seconds.
class RecentMean {
 public:
  double Next(double value) {
    m_values.push_back(value);
    m_sum += value;
    if (m_values.size() > kMost) {
      m_sum -= m_values.front();
      m_values.pop_front();
    }
    return m_sum / static_cast<double>(m_values.size());
  }

 private:
  static constexpr std::size_t kMost = static_cast<std::size_t>(10.0 / BoatModel::kTick);
  std::deque<double> m_values;
  double m_sum = 0.0;
};

/// A boat on her course under a pilot, and the program that reads her compass, wind and log.
class Held {
 public:
  explicit Held(const HoldCase& what)
      : m_case(what),
        m_boat(BoatOf(what)),
        m_passage(m_boat, CourseOf(m_boat, what.Side, what.Angle), what.Seed) {
    Settings& set = m_passage.Set;
    set.m_iNmeaHeading = 0;
    set.m_iNmeaBoatSpeed = 0;
    set.m_fTrackBandwidth = what.Bandwidth;
    set.m_fTrackDamping = what.Damping;
    what.Method.Use(set);
    // The pilot's own compass has to show the course for the boat to lie on it.
    m_passage.TheHelm().Loop().SetAutoPilot(static_cast<double>(set.m_fAutoPilot) +
                                            m_boat.Pilot.CompassOffset);
    m_passage.Sail(5.0);
    m_passage.TheHelm().Modes().TrackSetManual();
    m_passage.Sail(kMinute);
    m_passage.TheHelm().Loop().Side(what.Side);
    if (!what.Constant) {
      m_passage.TheHelm().Modes().TrackSetTrack();
    }
    m_passage.TheHelm().Loop().SetDesired(what.Side, what.Angle);
    m_passage.Sail(kComesToRest);
  }

  Passage& OnHerWay() { return m_passage; }

  HoldResult Result() {
    const double travel = m_passage.Boat.State().RudderTravel;
    const int changes = m_passage.Boat.Reader().BearingChanges();
    m_passage.Sail(kCounts, [this] { Add(Error()); });
    const double mean = m_sum / m_count;
    const double minutes = kCounts / kMinute;
    return {mean, std::sqrt(std::max(0.0, m_squares / m_count - mean * mean)), m_most,
            (m_passage.Boat.State().RudderTravel - travel) / minutes,
            (m_passage.Boat.Reader().BearingChanges() - changes) / minutes};
  }

  UpsetResult Standby(double off) {
    constexpr double kWatched = 2.0 * kMinute;
    UpsetResult result;
    const auto follow = [&] {
      result.Ahead = std::max(result.Ahead, std::fabs(m_passage.BearingAhead() - m_boat.Pilot.CompassOffset));
    };
    m_passage.Boat.PilotStandby(m_passage.Boat.State().Compass + off);
    m_passage.Sail(kMinute / 2.0, follow);
    m_passage.Sail(kMinute / 2.0, [&] {
      follow();
      result.Before = std::max(result.Before, std::fabs(Error()));
    });
    m_passage.Boat.PilotEngage();
    RecentMean recent;
    double since = 0.0;
    result.Back = kWatched;
    m_passage.Sail(kWatched, [&] {
      follow();
      since += BoatModel::kTick;
      result.Most = std::max(result.Most, std::fabs(Error()));
      const bool away = std::fabs(recent.Next(Error())) > 5.0;
      result.Stays = away ? since : result.Stays;
      result.Back = away ? result.Back : std::min(result.Back, since);
    });
    return result;
  }

  BurstResult Burst() {
    m_passage.Input.Set().Held = true;
    m_passage.Sail(30.0);
    const double before = Bearing();
    BurstResult result;
    m_passage.Input.Set().Held = false;
    m_passage.Sail(2.0, [&] {
      result.Moved = std::max(result.Moved, std::fabs(std::remainder(Bearing() - before, 360.0)));
    });
    m_passage.Sail(2.0 * kMinute, [&] { result.Most = std::max(result.Most, std::fabs(Error())); });
    return result;
  }

 private:
  double Bearing() const { return static_cast<double>(m_passage.Set.m_fAutoPilot); }
  double Error() const {
    const BoatState& state = m_passage.Boat.State();
    const double has = m_case.Side == TrackSide::Apparent ? state.ApparentAngle : state.TrueAngle;
    return std::remainder(has - m_case.Angle, 360.0);
  }
  void Add(double error) {
    m_count += 1.0;
    m_sum += error;
    m_squares += error * error;
    m_most = std::max(m_most, std::fabs(error));
  }

  const HoldCase& m_case;
  BoatSettings m_boat;
  Passage m_passage;
  double m_count = 0.0;
  double m_sum = 0.0;
  double m_squares = 0.0;
  double m_most = 0.0;
};

}  // namespace

const std::vector<NamedMethod>& NamedMethods() {
  static const std::vector<NamedMethod> methods{
      {"Sentence", [](Settings& set) { set.m_eTrackMethod = TrackMethod::Sentence; }},
      {"Clock", [](Settings& set) { set.m_eTrackMethod = TrackMethod::Clock; }},
      {"Direction", [](Settings& set) { set.m_eTrackMethod = TrackMethod::Direction; }}};
  return methods;
}

HoldResult Hold(const HoldCase& what) { return Held(what).Result(); }

void HoldAnd(const HoldCase& what, const std::function<void(Passage&)>& then) {
  Held held(what);
  then(held.OnHerWay());
}

UpsetResult StandbyUpset(const HoldCase& what, double off) { return Held(what).Standby(off); }

BurstResult LateBurst(const HoldCase& what) { return Held(what).Burst(); }

std::vector<HoldCase> Passages(const HoldCase& what, const std::vector<double>& lags) {
  std::vector<HoldCase> cases;
  for (const double lag : lags) {
    for (const Sea sea : {Sea::Flat, Sea::Slight, Sea::Beam, Sea::Following, Sea::Head}) {
      for (const auto& [side, angle] : kHeldAngles) {
        HoldCase one = what;
        one.Lag = lag;
        one.TheSea = sea;
        one.Side = side;
        one.Angle = angle;
        one.Seed = what.Seed + cases.size();
        cases.push_back(one);
      }
    }
  }
  return cases;
}

HoldSummary SummaryOf(const std::vector<HoldResult>& results) {
  HoldSummary summary;
  summary.Count = static_cast<int>(results.size());
  summary.Lost = static_cast<int>(
      std::count_if(results.begin(), results.end(), [](const HoldResult& result) { return result.Lost(); }));
  const auto median = [&results](double HoldResult::*member) {
    std::vector<double> values;
    for (const HoldResult& result : results) {
      values.push_back(result.*member);
    }
    return Median(values);
  };
  summary.Rms = median(&HoldResult::Rms);
  summary.Rudder = median(&HoldResult::Rudder);
  summary.Changes = median(&HoldResult::Changes);
  return summary;
}

}  // namespace veerwatch
