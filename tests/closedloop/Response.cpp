#include "tests/closedloop/Response.h"

#include <algorithm>
#include <cmath>

#include "tests/closedloop/Passage.h"

namespace veerwatch {

namespace {

/// A boat on its wind angle, the input running, the mode still Setup.
struct Ready : Passage {
  Ready(const LoopCase& what, std::uint64_t seed)
      : Passage(what.Boat, what.Boat.WindFrom - what.Boat.Variation - what.WindAngle, seed) {
    Set.m_fTrackBandwidth = what.Bandwidth;
    Set.m_fTrackDamping = what.Damping;
    Input.Set() = what.Wire;
    Sail(60.0);
  }
};

/// Mean and deviation of what it is given.
class Statistics {
 public:
  void Add(double value) {
    m_count += 1.0;
    m_sum += value;
    m_squares += value * value;
  }
  double Mean() const { return m_sum / m_count; }
  double Deviation() const { return std::sqrt(m_squares / m_count - Mean() * Mean()); }

 private:
  double m_count = 0.0;
  double m_sum = 0.0;
  double m_squares = 0.0;
};

constexpr double kHalfAnHour = 1800.0;

}  // namespace

ShiftResult AnswerToShift(const ShiftCase& what) {
  Ready passage(what.Loop, 1);
  passage.Track(what.Loop.Side);
  passage.Sail(10.0);

  const double before = passage.RealError();
  passage.Boat.Set().WindFrom += what.Shift;
  const double start = passage.Boat.State().Seconds;
  const double sign = what.Shift > 0.0 ? 1.0 : -1.0;
  const double size = std::fabs(what.Shift);
  ShiftResult result;
  const auto watch = [&] {
    const double error = passage.RealError() - before;
    const double since = passage.Boat.State().Seconds - start;
    if (std::fabs(error) > 0.1 * size) {
      result.Settling = since;
    }
    result.Overshoot = std::max(result.Overshoot, -error * sign / size);
    result.Ahead = std::max(result.Ahead, std::fabs(passage.BearingAhead()));
    if (what.Each) {
      what.Each(since, error);
    }
  };
  passage.Sail(what.Seconds, watch);
  result.Settled = result.Settling < 0.75 * what.Seconds;
  return result;
}

GustResult HoldInGusts(const LoopCase& what, std::uint64_t seed) {
  Statistics untracked;
  {
    Ready passage(what, seed);
    passage.TheHelm().Modes().TrackSetManual();
    passage.Sail(300.0);
    passage.Sail(kHalfAnHour, [&] {
      const BoatState& state = passage.Boat.State();
      untracked.Add(what.Side == TrackSide::Apparent ? state.ApparentAngle : state.TrueAngle);
    });
  }
  Ready passage(what, seed);
  passage.Track(what.Side);
  passage.Sail(300.0);
  Statistics shown;
  Statistics real;
  passage.Sail(kHalfAnHour, [&] {
    shown.Add(passage.ShownError());
    real.Add(passage.RealError());
  });
  return {shown.Mean(), real.Mean(), real.Deviation(), untracked.Deviation()};
}

StandbyResult StandbyInTrack(const LoopCase& what, double off, double seconds) {
  Ready passage(what, 1);
  passage.Track(what.Side);
  passage.Sail(60.0);
  passage.Boat.PilotStandby(passage.Boat.State().Compass + off);
  StandbyResult result;
  double last = passage.BearingAhead();
  double ahead = last;
  const auto follow = [&] {
    const double now = passage.BearingAhead();
    ahead += std::remainder(now - last, 360.0);
    last = now;
  };
  passage.Sail(seconds, follow);
  result.Ahead = std::fabs(ahead);
  passage.Boat.PilotEngage();
  const auto watch = [&] { result.Error = std::max(result.Error, std::fabs(passage.RealError())); };
  passage.Sail(600.0, watch);
  return result;
}

}  // namespace veerwatch
