// How much of its line's time the sentences for the pilot take.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace veerwatch {

struct LineLoad {
  double Part = 0.0;  ///< of the line's time, from 0 on; above 1 more is built than leaves
  int Baud = 0;       ///< what the line carries [above 0]

  /// More than 80 % of the time: what comes late has no room to catch up.
  bool Full() const;
};

/// The load of a bundle of `characters`, ten bits each, that leaves `cadence` times a second, or for 0 with
/// each wind of `winds` [1/s]. Nothing where the rate of the line, or of the winds, is not known.
std::optional<LineLoad> LineLoadOf(std::size_t characters, int cadence, const std::optional<double>& winds,
                                   const std::optional<int>& baud);

/// "Pilot line 93 % full at 4800 baud".
std::string LineLoadText(const LineLoad& load);

}  // namespace veerwatch
