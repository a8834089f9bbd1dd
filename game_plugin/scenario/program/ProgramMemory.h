#pragma once
#include <cstddef>
#include <deque>
#include <memory_resource>
#include <new>
#include <string_view>
#include <type_traits>

namespace script {

/// Memory of one program. What is made in it lies side by side, in the order in which a tick reads it, and goes with
/// the program, all at once and without destructors.
class ProgramMemory {
public:
  explicit ProgramMemory(std::size_t firstChunk) : mNextChunk(firstChunk) {}

  template <class T> T* create() {
    static_assert(std::is_trivially_destructible_v<T>, "nothing here is destroyed: keep a text as an Argument");
    return new (allocate(sizeof(T), alignof(T))) T();
  }
  void* allocate(std::size_t size, std::size_t alignment) {
    const std::size_t begin = (mUsed + alignment - 1) & ~(alignment - 1);
    if (begin + size > mChunk) return allocateInNewChunk(size, alignment);
    mUsed = begin + size;
    return mResources.back().allocate(size, alignment);
  }
  /// A copy of the texts, one behind the other.
  std::string_view store(std::string_view first, std::string_view second = {}, std::string_view third = {});

private:
  void* allocateInNewChunk(std::size_t size, std::size_t alignment);

  /// One for each chunk: a resource of its own would take chunks that grow with the program, and leave a third unused.
  std::deque<std::pmr::monotonic_buffer_resource> mResources;
  std::size_t mChunk = 0; ///< size of the last one
  std::size_t mUsed = 0;  ///< of it
  std::size_t mNextChunk;
};

}
