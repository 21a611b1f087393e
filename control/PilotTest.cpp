#include "control/PilotTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/Angles.h"

namespace veerwatch {

namespace {

constexpr std::int64_t kSecond = 1000;  // [ms]
constexpr std::size_t kListened = static_cast<std::size_t>(PilotTest::kListens / kSecond);
constexpr double kLittle = 4.0;  // [deg] that are no turn yet

double Fold(double angle) { return static_cast<double>(FoldRelative(angle)); }

}  // namespace

void PilotTest::Leg::Add(double heading, std::int64_t since) {
  const auto second = static_cast<std::size_t>(std::max<std::int64_t>(0, since) / kSecond);
  if (second < kSeconds) {
    Sum[second] += heading;
    ++Count[second];
  }
}

std::optional<double> PilotTest::Leg::Mean(std::size_t begin, std::size_t end) const {
  double sum = 0.0;
  int count = 0;
  for (std::size_t second = begin; second < end; ++second) {
    if (Count[second] > 0) {
      sum += Sum[second] / Count[second];
      ++count;
    }
  }
  return count > 0 ? std::optional(sum / count) : std::nullopt;
}

void PilotTest::Begin(float bearing, std::int64_t moment) {
  *this = PilotTest();
  m_before = bearing;
  m_begun = moment;
  Next(Stage::Listens, moment);
}

void PilotTest::Next(Stage stage, std::int64_t moment) {
  m_stage = stage;
  m_since = moment;
}

float PilotTest::Bearing() const {
  return m_stage == Stage::Out ? FoldBearing(static_cast<double>(m_before) + kTurn) : m_before;
}

double PilotTest::Progress(std::int64_t moment) const {
  return std::clamp(static_cast<double>(moment - m_begun) / static_cast<double>(kMost), 0.0, 1.0);
}

PilotTest::Leg& PilotTest::Now() {
  return m_stage == Stage::Listens ? m_listens : m_stage == Stage::Out ? m_out : m_back;
}

void PilotTest::Heading(float heading, std::int64_t moment) {
  if (!Runs()) {
    return;
  }
  const auto shown = static_cast<double>(heading);
  m_heading = m_heading ? *m_heading + Fold(shown - *m_heading) : shown;
  Now().Add(*m_heading, moment - m_since);
}

bool PilotTest::RunsAway(std::int64_t moment) const {
  constexpr double kTooFar = 15.0;    // [deg]
  constexpr std::size_t kLatest = 4;  // [s]
  const auto second = static_cast<std::size_t>((moment - m_since) / kSecond);
  if (m_stage == Stage::Back || second < kLatest || second > kSeconds) {
    return false;
  }
  const bool out = m_stage == Stage::Out;
  const auto start = m_listens.Mean(0, kLatest);
  const auto latest = (out ? m_out : m_listens).Mean(second - kLatest, second);
  const double turned = start && latest ? *latest - *start : 0.0;
  return turned < -kTooFar || turned > kTooFar + (out ? kTurn : 0.0);
}

void PilotTest::Tick(std::int64_t moment) {
  const std::int64_t passed = moment - m_since;
  if (Runs() && RunsAway(moment)) {
    m_result.Verdict = FollowVerdict::TurnsAway;
    m_stage = Stage::Done;
  } else if (m_stage == Stage::Listens && passed >= kListens) {
    Next(Stage::Out, moment);
  } else if (m_stage == Stage::Out && passed >= kLeg) {
    const auto start = m_listens.Mean(0, kSeconds);
    const auto end = m_out.Mean(kSeconds - kRests, kSeconds);
    m_came = start && end && *end - *start >= kLittle;
    Next(Stage::Back, moment);
    if (!m_came) {
      Conclude();
    }
  } else if (m_stage == Stage::Back && passed >= kLeg) {
    Conclude();
  }
}

PilotTest::Curve PilotTest::BothWays(double start, double end) const {
  Curve curve{};
  double out = 0.0;
  double back = 0.0;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    const bool before = i < kRests;
    const std::size_t second = before ? kListened - kRests + i : i - kRests;
    const std::size_t rest = before ? kSeconds - kRests + i : i - kRests;
    // A second without a heading is like the one before.
    out = (before ? m_listens : m_out).Mean(second, second + 1).value_or(start + out) - start;
    back = end - (before ? m_out : m_back).Mean(rest, rest + 1).value_or(end - back);
    curve[i] = (out + back) / 2.0;
  }
  return curve;
}

void PilotTest::Conclude() {
  m_stage = Stage::Done;
  const auto start = m_listens.Mean(0, kSeconds);
  const auto end = m_out.Mean(kSeconds - kRests, kSeconds);
  if (!start || !end) {
    return;
  }
  m_result.Offset = Fold(static_cast<double>(m_before) - *start);
  m_result.Made = *end - *start;
  if (!m_came) {
    m_result.Verdict = m_result.Made <= -kLittle ? FollowVerdict::TurnsAway : FollowVerdict::DoesNotFollow;
    return;
  }
  const auto again = m_back.Mean(kSeconds - kRests, kSeconds).value_or(*start);
  m_result.Offset = (m_result.Offset + Fold(static_cast<double>(m_before) + kTurn - *end) +
                     Fold(static_cast<double>(m_before) - again)) /
                    3.0;
  Measure(BothWays(*start, *end));
}

// The curve of a delay and a lag that is nearest to what was seen: its height and its foot follow from the
// least squares, delay and lag are tried. Waves take no part in it, as they would in two single headings.
void PilotTest::Measure(const Curve& curve) {
  constexpr double kMostOfIt = 7.0;  // [deg]
  constexpr double kSlow = 18.0;     // [s]
  constexpr double kTurnTime = 3.0;  // [s]
  constexpr double kStep = 0.25;     // [s]
  constexpr int kLags = 120;         // of them
  constexpr int kDelays = 16;
  double least = std::numeric_limits<double>::infinity();
  for (int delays = 0; delays <= kDelays; ++delays) {
    for (int lags = 1; lags <= kLags; ++lags) {
      const double delay = delays * kStep;
      const double lag = lags * kStep;
      const Fit fit = FitOf(curve, delay, lag);
      if (fit.Misses < least) {
        least = fit.Misses;
        m_result.Made = fit.Height * (1.0 - std::exp(-static_cast<double>(kSeconds) / lag));
        m_result.Lag = delay + lag;
        m_result.Rate = fit.Height * (1.0 - std::exp(-kTurnTime / lag)) / kTurnTime;
      }
    }
  }
  m_result.Verdict =
      m_result.Made < kMostOfIt || m_result.Lag > kSlow ? FollowVerdict::Slow : FollowVerdict::Follows;
}

PilotTest::Fit PilotTest::FitOf(const Curve& curve, double delay, double lag) {
  const auto count = static_cast<double>(curve.size());
  std::array<double, kRests + kSeconds> shape{};
  double shapes = 0.0;
  double values = 0.0;
  double squares = 0.0;
  double products = 0.0;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    // In the middle of its second.
    const double since = static_cast<double>(i) + 0.5 - static_cast<double>(kRests) - delay;
    shape[i] = since > 0.0 ? 1.0 - std::exp(-since / lag) : 0.0;
    shapes += shape[i];
    values += curve[i];
    squares += shape[i] * shape[i];
    products += shape[i] * curve[i];
  }
  Fit fit;
  fit.Height = (products - shapes * values / count) / (squares - shapes * shapes / count);
  const double foot = (values - fit.Height * shapes) / count;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    fit.Misses += std::pow(curve[i] - foot - fit.Height * shape[i], 2.0);
  }
  return fit;
}

}  // namespace veerwatch
