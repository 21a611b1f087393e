// When each line of a recorded log is due, as it is played: by the times in front of its lines, by a fixed
// interval, or, where it has neither, a second for each wind.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Endpoint.h"

namespace veerwatch {

class LogPace {
 public:
  /// `file` is one of Endpoint::Kind::File.
  explicit LogPace(const Endpoint& file) : m_speed(file.Speed), m_interval(file.Interval) {}

  /// Takes the time off the front of `line` and says when the line is due, after the first one [ms, at least
  /// that of the line before]. Times that run backwards wait for nothing.
  std::int64_t Due(std::string& line);

 private:
  double m_speed;
  double m_interval;
  double m_due = 0.0;  ///< of the latest line [ms]
  bool m_first = true;
  std::optional<std::int64_t> m_time;  ///< of the latest line that had one [ms since 1970]
};

}  // namespace veerwatch
