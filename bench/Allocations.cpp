#include "bench/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t g_count = 0;

}  // namespace

namespace veerwatch {

std::uint64_t AllocationCount() { return g_count; }

}  // namespace veerwatch

void* operator new(std::size_t size) {
  ++g_count;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
