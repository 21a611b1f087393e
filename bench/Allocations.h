// Counts heap allocations of the whole program.
#pragma once

#include <cstdint>

namespace veerwatch {

/// Allocations since the program began: what every library takes where the C library is GNU's and no
/// sanitizer looks on, else the calls of operator new.
std::uint64_t AllocationCount();

}  // namespace veerwatch
