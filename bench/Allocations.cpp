#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t g_count = 0;

}  // namespace

namespace veerwatch {

std::uint64_t AllocationCount() { return g_count; }

}  // namespace veerwatch

#if defined(__GLIBC__) && !defined(VEERWATCH_SANITIZED)

// operator new comes here, too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size) {
  ++g_count;
  return __libc_malloc(size);
}

#else

void* operator new(std::size_t size) {
  ++g_count;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }

#endif
