// "veerwatch-cli polar targets" and "polar best": how best to sail towards a bearing, and the wind angles
// that make the most way.
#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "polar/CourseTargets.h"

namespace veerwatch {

struct PolarTargetsOptions {
  std::string File;
  std::optional<CourseQuery> Query;  ///< without one, queries come from the input
  std::optional<float> Range;        ///< to the waypoint [nm]; adds the times
  std::optional<float> BoatSpeed;    ///< the boat's own [kn]; scales every speed by it over the polar's
  bool Json = false;
  bool Smooth = false;  ///< PolarTable::Smooth
};

struct PolarBestOptions {
  std::string File;
  float WindSpeed = 0.0F;  ///< true wind [kn]
  bool Smooth = false;     ///< PolarTable::Smooth
};

/// Writes the solution. Without a query, reads lines "heading bearing twa tws" from `in` and writes a
/// solution for each: as JSON a line each, else in blocks with an empty line between. Throws CommandError.
void PolarTargetsCommand(const PolarTargetsOptions& options, std::istream& in, std::ostream& out);

/// Writes the best angles upwind and downwind, with the speeds made good; "none" where the polar makes no
/// way. Throws CommandError.
void PolarBestCommand(const PolarBestOptions& options, std::ostream& out);

}  // namespace veerwatch
