#include "platform/VectorUnit.h"

namespace veerwatch {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {

__attribute__((target("avx"))) void ZeroUpper() { __builtin_ia32_vzeroupper(); }

}  // namespace

void ClearUpperHalves() {
  static const bool kHasThem = __builtin_cpu_supports("avx") != 0;
  if (kHasThem) {
    ZeroUpper();
  }
}

#else

void ClearUpperHalves() {}

#endif

}  // namespace veerwatch
