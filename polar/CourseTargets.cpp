#include "polar/CourseTargets.h"

#include <cmath>

#include "instruments/MathLib.h"

namespace veerwatch {

namespace {

constexpr int kSlot = 0;
constexpr std::size_t kOffsets = 91;
constexpr double kRadiansPerDegree = kPi / 180.0;
constexpr float kAbeam = 90.0F;
constexpr float kHalfTurn = 180.0F;

/// The wind as the course line sees it.
struct CourseWind {
  double Angle = 0.0;    ///< [deg, [0, 360)]
  float Speed = 0.0F;    ///< [kn]
  float Bearing = 0.0F;  ///< of the course line [deg magnetic, [0, 360)]
};

/// A heading off the course line.
struct Offset {
  double Degrees = 0.0;  ///< positive to the right
  float WindAngle = 0.0F;
  float Speed = 0.0F;
  double Along = 0.0;
  double Cross = 0.0;
};

/// All headings at one side of the course line, from 0 degrees outwards.
using Side = std::array<Offset, kOffsets>;

Offset MakeOffset(const PolarTable& table, const CourseWind& wind, double degrees) {
  Offset offset;
  offset.Degrees = degrees;
  offset.WindAngle = ToSingle(AngleRelative(wind.Angle - degrees));
  offset.Speed = table.PolarSpeed(kSlot, std::fabs(offset.WindAngle), wind.Speed);
  offset.Along = std::cos(degrees * kRadiansPerDegree) * static_cast<double>(offset.Speed);
  offset.Cross = std::sin(degrees * kRadiansPerDegree) * static_cast<double>(offset.Speed);
  return offset;
}

Side MakeSide(const PolarTable& table, const CourseWind& wind, double direction) {
  Side side;
  for (std::size_t i = 0; i < kOffsets; ++i) {
    side[i] = MakeOffset(table, wind, direction * static_cast<double>(i));
  }
  return side;
}

/// Share of the time on `right` with which the cross components cancel.
double ShareOf(const Offset& right, const Offset& left) {
  if (right.Cross == 0.0) {
    return left.Cross != 0.0 || right.Along > left.Along ? 1.0 : 0.0;
  }
  return left.Cross == 0.0 ? 0.0 : left.Cross / (left.Cross - right.Cross);
}

CourseLeg MakeLeg(const Offset& offset, const CourseWind& wind, double share) {
  return {FoldBearing(static_cast<double>(wind.Bearing) + offset.Degrees),
          offset.WindAngle,
          offset.Speed,
          ToSingle(offset.Along),
          ToSingle(offset.Cross),
          ToSingle(share)};
}

/// The straight course on one of the legs.
CourseLeg StraightLeg(const Offset& straight, const CourseWind& wind, bool sailed) {
  const float speed = sailed ? straight.Speed : 0.0F;
  return {wind.Bearing, straight.WindAngle, speed, speed, 0.0F, sailed ? 1.0F : 0.0F};
}

float AsAngle(float angle) {
  return std::fabs(angle) <= kHalfTurn ? angle : FoldRelative(static_cast<double>(angle));
}

}  // namespace

CourseSolution CourseTargets(const PolarTable& table, const CourseQuery& query) {
  const float windAngle = AsAngle(query.WindAngleTrue);
  const float bearing = FoldBearing(static_cast<double>(query.TargetBearing));
  const double heading = static_cast<double>(FoldBearing(static_cast<double>(query.Heading)));
  const CourseWind wind{
      AngleAbsolute(heading + static_cast<double>(windAngle) - static_cast<double>(bearing)),
      query.WindSpeedTrue, bearing};
  const Side rights = MakeSide(table, wind, 1.0);
  const Side lefts = MakeSide(table, wind, -1.0);
  const Offset& straight = rights.front();

  CourseSolution solution;
  solution.SideFlag = windAngle < 0.0F;
  solution.Upwind = std::fabs(windAngle) <= kAbeam;
  solution.Direct = straight.Speed;
  solution.Legs = {StraightLeg(straight, wind, solution.SideFlag),
                   StraightLeg(straight, wind, !solution.SideFlag)};
  double best = static_cast<double>(straight.Speed) * kWorthTacking;
  const Offset* bestRight = nullptr;
  const Offset* bestLeft = nullptr;
  for (const Offset& right : rights) {
    if (right.Speed == 0.0F) {
      continue;
    }
    for (const Offset& left : lefts) {
      if (left.Speed != 0.0F && right.Cross >= 0.0 && left.Cross <= 0.0) {
        const double share = ShareOf(right, left);
        const double madeGood = left.Along * (1.0 - share) + right.Along * share;
        if (madeGood > best) {
          best = madeGood;
          bestRight = &right;
          bestLeft = &left;
        }
      }
    }
  }
  solution.Best = solution.Direct;
  if (bestRight != nullptr) {
    const double share = ShareOf(*bestRight, *bestLeft);
    solution.Best = ToSingle(best);
    solution.Legs = {MakeLeg(*bestRight, wind, share), MakeLeg(*bestLeft, wind, 1.0 - share)};
    if (!solution.Upwind) {
      std::swap(solution.Legs[0], solution.Legs[1]);
    }
  }
  return solution;
}

CourseSolution CourseScaled(CourseSolution solution, float boatSpeed, float polarSpeed) {
  if (polarSpeed == 0.0F) {
    return solution;
  }
  const double ratio = static_cast<double>(boatSpeed) / static_cast<double>(polarSpeed);
  const auto scale = [ratio](float& speed) { speed = ToSingle(static_cast<double>(speed) * ratio); };
  scale(solution.Direct);
  scale(solution.Best);
  for (CourseLeg& leg : solution.Legs) {
    scale(leg.Speed);
    scale(leg.Along);
    scale(leg.Cross);
  }
  return solution;
}

std::size_t PortLeg(const CourseSolution& solution) {
  const auto& [first, second] = solution.Legs;
  if (first.WindAngle == second.WindAngle) {
    const std::size_t sailed = first.Share > 0.0F ? 0 : 1;
    return first.WindAngle < 0.0F ? sailed : 1 - sailed;
  }
  return first.WindAngle < second.WindAngle ? 0 : 1;
}

std::size_t LegNow(const CourseSolution& solution) {
  const std::size_t port = PortLeg(solution);
  const std::size_t now = solution.SideFlag ? port : 1 - port;
  return solution.Legs[now].Share > 0.0F ? now : 1 - now;
}

const CourseSolution& CourseMemory::Solve(const PolarTable& table, std::uint64_t version,
                                          const CourseQuery& query) {
  if (!m_solution || m_version != version || !(m_query == query)) {
    m_solution = CourseTargets(table, query);
    m_version = version;
    m_query = query;
  }
  return *m_solution;
}

}  // namespace veerwatch
