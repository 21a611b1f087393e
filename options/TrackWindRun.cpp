#include "options/TrackWindRun.h"

#include <cmath>
#include <numbers>

#include "control/TrackLoop.h"
#include "platform/Angles.h"
#include "platform/Language.h"
#include "platform/NumberText.h"

namespace veerwatch {

namespace {

constexpr double kMillisecondsPerSecond = 1000.0;
constexpr double kDegree = std::numbers::pi / 180.0;
constexpr std::int64_t kStart = 10000;  // [ms] over which the wind of the start is taken
constexpr double kHeld = 60.0;          // [deg]; as the wind turns round the boat, any angle gives the same
constexpr double kVaneLag = 1.5;        // [s]

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

/// How much of a step is taken up after `seconds`, for a lag [s, at least 0].
double Share(double seconds, double lag) { return lag > 0.0 ? 1.0 - std::exp(-seconds / lag) : 1.0; }

/// The mean direction of the first seconds [deg magnetic].
double StartDirection(const std::vector<WindSample>& winds) {
  double x = 0.0;
  double y = 0.0;
  for (const WindSample& wind : winds) {
    if (wind.Moment - winds.front().Moment > kStart) {
      break;
    }
    const double direction = static_cast<double>(wind.Direction) * kDegree;
    x += std::cos(direction);
    y += std::sin(direction);
  }
  return std::atan2(y, x) / kDegree;
}

/// A boat under the loop.
class WindBoat {
 public:
  WindBoat(const Settings& settings, TrackMethod method, double lag, double heading)
      : m_settings(settings),
        m_record(m_settings),
        m_loop(m_settings, m_record.Data()),
        m_lag(lag),
        m_heading(heading),
        m_vane(heading) {
    m_settings.m_eTrackMethod = method;
    m_settings.m_eTrackMode = TrackMode::Manual;
    m_settings.m_fAutoPilot = FoldBearing(heading);
    m_settings.m_bTrackAlarm = false;
    m_loop.Side(TrackSide::True);
  }

  bool Start() {
    const bool tracks = m_loop.StartTracking();
    m_settings.m_eTrackMode = TrackMode::Track;
    m_loop.SetDesired(TrackSide::True, kHeld);
    return tracks;
  }

  /// Sails `seconds` and takes a wind; gives how far the bearing moved [deg].
  double Pass(const WindSample& wind, double seconds) {
    const double before = Bearing();
    m_heading += Fold(before - m_heading) * Share(seconds, m_lag);
    m_vane += Fold(m_heading - m_vane) * Share(seconds, kVaneLag);
    LoopInput input(Moment{wind.Moment, 0});
    Origin from;
    from.At = input.Now;
    m_record.HeadingUpdate(FoldBearing(m_heading), from);
    const float angle = FoldRelative(static_cast<double>(wind.Direction) - m_vane);
    if (wind.BringsTrue) {
      m_record.WindTrueUpdate(angle, wind.Speed, true, from);
    }
    input.BringsApparent = !wind.BringsTrue;
    input.BringsTrue = wind.BringsTrue;
    input.TrueWind = LoopInput::Wind{angle, wind.Speed};
    m_loop.ControlStep(input);
    return std::fabs(Fold(Bearing() - before));
  }

  /// What the boat's own wind angle is off [deg].
  double Error(const WindSample& wind) const {
    return Fold(static_cast<double>(wind.Direction) - m_heading - kHeld);
  }

 private:
  double Bearing() const { return static_cast<double>(m_settings.m_fAutoPilot); }

  Settings m_settings;
  InstrumentRecord m_record;
  TrackLoop m_loop;
  double m_lag;
  double m_heading;  // [deg, any turn]
  double m_vane;     // the heading as the vane shows it [deg, any turn]
};

std::int64_t Span(const std::vector<WindSample>& winds) {
  return winds.empty() ? 0 : winds.back().Moment - winds.front().Moment;
}

}  // namespace

const char* TrackMethodName(TrackMethod method) {
  switch (method) {
    case TrackMethod::Sentence:
      break;
    case TrackMethod::Clock:
      return TrMark("Clock");
    case TrackMethod::Direction:
      return TrMark("Direction");
  }
  return TrMark("Sentence");
}

std::string TrackWindRun::Text() const {
  const auto number = [](double value, const char* pattern) {
    return FormatNumber(ToSingle(value), pattern);
  };
  return Filled(
      Tr("%1: mean %2, rms %3 deg, rudder %4 deg/min"),
      {Tr(TrackMethodName(Method)), number(Mean, "0.0"), number(RootMeanSquare, "0.0"), number(Rudder, "0")});
}

std::string TrackWindTrouble(const std::vector<WindSample>& winds, double lag) {
  if (!(lag >= 0.0 && lag <= kMostTrackLag)) {
    return Tr("Boat lag must be from 0 to 60 seconds");
  }
  if (Span(winds) < kLeastTrackWind) {
    return Filled(Tr("Two minutes of wind and heading are needed; %1 seconds are recorded"),
                  {std::to_string(Span(winds) / 1000)});
  }
  return {};
}

std::optional<TrackWindRun> TrackWindRunOf(const Settings& settings, TrackMethod method, double lag,
                                           const std::vector<WindSample>& winds) {
  if (!TrackWindTrouble(winds, lag).empty()) {
    return std::nullopt;
  }
  WindBoat boat(settings, method, lag, StartDirection(winds) - kHeld);
  if (!boat.Start()) {
    return std::nullopt;
  }
  TrackWindRun run;
  run.Method = method;
  run.Errors.reserve(winds.size());
  double moved = 0.0;
  double sum = 0.0;
  double squares = 0.0;
  std::int64_t before = winds.front().Moment;
  for (const WindSample& wind : winds) {
    moved += boat.Pass(wind, static_cast<double>(wind.Moment - before) / kMillisecondsPerSecond);
    before = wind.Moment;
    const double error = boat.Error(wind);
    run.Errors.push_back(error);
    sum += error;
    squares += error * error;
  }
  const auto count = static_cast<double>(winds.size());
  run.Mean = sum / count;
  run.RootMeanSquare = std::sqrt(squares / count);
  run.Rudder = moved * 60.0 * kMillisecondsPerSecond / static_cast<double>(Span(winds));
  return run;
}

}  // namespace veerwatch
