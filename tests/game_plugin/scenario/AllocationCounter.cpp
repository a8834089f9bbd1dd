#include "tests/game_plugin/scenario/AllocationCounter.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> liveBytes{0};

void* count(void* memory) {
  ++allocations;
  liveBytes += malloc_usable_size(memory); // 0 for null
  return memory;
}

void* give(void* memory) {
  if (!memory) throw std::bad_alloc();
  return count(memory);
}

void takeBack(void* memory) {
  liveBytes -= malloc_usable_size(memory); // 0 for null
  std::free(memory);
}

}

std::size_t getNumberOfAllocations() { return allocations; }
std::size_t getLiveBytes() { return liveBytes; }

void* operator new(std::size_t size) { return give(std::malloc(size ? size : 1)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto unit = static_cast<std::size_t>(alignment);
  return give(std::aligned_alloc(unit, (std::max<std::size_t>(size, 1) + unit - 1) / unit * unit));
}
// A library's own memory comes from here (std::stable_sort asks so), and goes back through our delete.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return count(std::malloc(size ? size : 1)); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { takeBack(memory); }
void operator delete(void* memory) noexcept { takeBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { takeBack(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { takeBack(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { takeBack(memory); }
