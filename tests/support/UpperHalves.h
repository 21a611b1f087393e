// The upper halves of the vector registers, as a drawing leaves them and as the processor tells of them.
#pragma once

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace veerwatch {

#if defined(__x86_64__)

/// The processor has upper halves and tells whether anything is in them.
inline bool UpperHalvesTell() {
  unsigned a = 0;
  unsigned b = 0;
  unsigned c = 0;
  unsigned d = 0;
  constexpr unsigned kTellsInUse = 4;  // XGETBV with 1
  return __builtin_cpu_supports("avx") != 0 && __get_cpuid_count(13, 1, &a, &b, &c, &d) != 0 &&
         (a & kTellsInUse) != 0;
}

inline void FillUpperHalves() {
  __asm__ volatile("vpcmpeqd %%xmm15, %%xmm15, %%xmm15\n\tvinsertf128 $1, %%xmm15, %%ymm15, %%ymm15" ::
                       : "xmm15");
}

inline bool UpperHalvesInUse() {
  unsigned low = 0;
  unsigned high = 0;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
  constexpr unsigned kUpperHalves = 4;
  return (low & kUpperHalves) != 0;
}

#else

inline bool UpperHalvesTell() { return false; }
inline void FillUpperHalves() {}
inline bool UpperHalvesInUse() { return false; }

#endif

}  // namespace veerwatch
