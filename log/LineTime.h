// The time that a recorded line has in front of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veerwatch {

/// Takes the time off the front of `line`, with the blank after it, and returns it [ms since 1970 UTC].
/// Nothing, with the line as it was, where none stands there. Three forms are known:
///
///     2 2026-11-21T09:15:02.123Z $IIMWV,045.0,R,10.5,N,A*hh
///     |                     |
///     |                     fraction of a second, one to nine digits, or none with its point
///     which of several endpoints it came from, one or two digits, or nothing; goes with the time
///     1795252502.123 $IIMWV,045.0,R,10.5,N,A*hh
///     |          fraction, or none with its point
///     seconds since 1970, nine to eleven digits
///     \\s:vane,c:1795252502*hh\\$IIMWV,045.0,R,10.5,N,A*hh
///              |
///              seconds since 1970, or milliseconds where there are twelve digits and more
std::optional<std::int64_t> TakeLineTime(std::string& line);

/// Appends the first of these forms, with three digits of a second, to `text`. `wall` [ms since 1970 UTC]
/// lies in the years 0 to 9999.
void AppendLineTime(std::int64_t wall, std::string& text);

}  // namespace veerwatch
