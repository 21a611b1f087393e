// How best to sail towards a bearing with the boat's own polar: straight, or on two legs, one at either side
// of the course line, whose cross components cancel. The polar window and veerwatch-cli ask.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "polar/PolarTable.h"

namespace veerwatch {

/// What a search starts from. Any finite angles will do; they are folded.
struct CourseQuery {
  float Heading = 0.0F;        ///< [deg magnetic]
  float TargetBearing = 0.0F;  ///< [deg magnetic]
  float WindAngleTrue = 0.0F;  ///< on the present heading [deg relative, negative to port]
  float WindSpeedTrue = 0.0F;  ///< [kn]
  bool operator==(const CourseQuery&) const = default;
};

struct CourseLeg {
  float Heading = 0.0F;    ///< [deg magnetic, [0, 360)]
  float WindAngle = 0.0F;  ///< at which the polar was looked up [deg relative, (-180, 180]]
  float Speed = 0.0F;      ///< [kn]
  float Along = 0.0F;      ///< part of the speed towards the bearing [kn]
  float Cross = 0.0F;      ///< part of it across, positive to the right of the course line [kn]
  float Share = 0.0F;      ///< of the time [0 to 1]; those of both legs add to 1
};

struct CourseSolution {
  /// Straight: both head for the bearing, and the first has all of the time while the true wind is to port,
  /// else the second. On two legs: with the wind up to 90 degrees the first is the one to the right of the
  /// course line, with the wind further aft the one to the left.
  std::array<CourseLeg, 2> Legs;
  float Direct = 0.0F;    ///< speed straight towards the bearing [kn]
  float Best = 0.0F;      ///< speed made good with these legs [kn]; Direct where they are the straight course
  bool SideFlag = false;  ///< the present true wind comes from port
  bool Upwind = true;     ///< it is 90 degrees or less off the bow
};

/// A route on two legs is worth it from here on. Deliberate: it must be faster than the straight course by
/// more than 3 percent.
inline constexpr double kWorthTacking = 1.03;

/// The solution for slot 0, from headings in steps of one degree up to 90 degrees to either side of the
/// bearing. Of equal routes the one with the smallest offset to the right, then to the left, wins. The table
/// is seen in its own wind, true or apparent; a smooth one in the true wind alone.
CourseSolution CourseTargets(const PolarTable& table, const CourseQuery& query);

/// The solution at the boat's own pace: every speed multiplied by `boatSpeed` over `polarSpeed` [kn];
/// unchanged where the polar speed is 0.
CourseSolution CourseScaled(CourseSolution solution, float boatSpeed, float polarSpeed);

/// Which leg has the wind from port, and which one from starboard. Where both have it from one side: which
/// has it more to port.
std::size_t PortLeg(const CourseSolution& solution);

/// The leg to sail now: the one with the wind from its present side; where that has no share, the other.
std::size_t LegNow(const CourseSolution& solution);

/// Searches and keeps the latest solution, for as long as the same is asked of the same table.
class CourseMemory {
 public:
  /// `version` stands for the state of `table`.
  const CourseSolution& Solve(const PolarTable& table, std::uint64_t version, const CourseQuery& query);

 private:
  std::uint64_t m_version = 0;
  CourseQuery m_query;
  std::optional<CourseSolution> m_solution;
};

}  // namespace veerwatch
