// One thing that the watch found: as words, and as a line of the file that keeps it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "control/WatchNow.h"

namespace veerwatch {

struct WatchEntry {
  std::int64_t Wall = 0;  ///< when [ms since 1970 UTC]
  bool Over = false;      ///< the condition was over; else it came
  Standing What;          ///< what of it its words tell
};

/// "2026-11-22 14:03:07 red No Wind 5 s" in the user's language, the time in UTC.
std::string WatchEntryText(const WatchEntry& entry);

/// The words of a file's line: time, "came" or "over", level, condition, figure, talkers, side of a shift and
/// verdict on the pilot. Without a line end.
std::string WatchEntryLine(const WatchEntry& entry);

/// The entry of such a line; nothing for any other text.
std::optional<WatchEntry> ReadWatchEntry(std::string_view line);

/// "2026-11-22 14:03:07" in UTC. `wall` [ms since 1970 UTC].
std::string UtcText(std::int64_t wall);

}  // namespace veerwatch
