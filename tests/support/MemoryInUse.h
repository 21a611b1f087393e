// How much memory is allocated, for tests of what must not grow.
#pragma once

#include <malloc.h>

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define VEERWATCH_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VEERWATCH_ADDRESS_SANITIZER
#endif
#endif

#ifdef VEERWATCH_ADDRESS_SANITIZER
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace veerwatch {

/// What is allocated at this moment [bytes].
inline std::size_t MemoryInUse() {
#ifdef VEERWATCH_ADDRESS_SANITIZER
  return __sanitizer_get_current_allocated_bytes();
#else
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
#endif
}

}  // namespace veerwatch
