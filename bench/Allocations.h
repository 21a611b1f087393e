// Counts heap allocations of the whole program.
#pragma once

#include <cstdint>

namespace veerwatch {

/// Calls of operator new since the program began.
std::uint64_t AllocationCount();

}  // namespace veerwatch
