// Wall clock times as text.
#pragma once

#include <cstdint>
#include <string>

namespace veerwatch {

/// Hour and minute of a wall time [ms since 1970 UTC] as the clock on the wall shows it, "09:05"; `utcOffset`
/// is what it is ahead of UTC [s].
std::string ClockText(std::int64_t wall, std::int32_t utcOffset);

/// The same with seconds, "09:05:10".
std::string ClockTextSeconds(std::int64_t wall, std::int32_t utcOffset);

/// "2026-03-31T09:05:10Z" [ISO 8601, UTC].
std::string Iso8601Text(std::int64_t wall);

}  // namespace veerwatch
