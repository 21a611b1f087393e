// The time that a recorded line has in front of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veerwatch {

/// Takes the time off the front of `line`, with the blank after it, and returns it [ms since 1970 UTC].
/// Nothing, with the line as it was, where none stands there.
///
///     2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A*hh
///                         |
///                         fraction of a second, one to nine digits, or none with its point
std::optional<std::int64_t> TakeLineTime(std::string& line);

}  // namespace veerwatch
