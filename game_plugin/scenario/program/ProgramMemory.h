#pragma once
#include <cstddef>
#include <memory_resource>
#include <new>
#include <string_view>
#include <type_traits>

namespace script {

/// Memory of one program. What is made in it lies side by side, in the order in which a tick reads it, and goes with
/// the program, all at once and without destructors.
class ProgramMemory {
public:
  explicit ProgramMemory(std::size_t firstChunk) : mResource(firstChunk) {}

  template <class T> T* create() {
    static_assert(std::is_trivially_destructible_v<T>, "nothing here is destroyed: keep a text as an Argument");
    return new (allocate(sizeof(T), alignof(T))) T();
  }
  void* allocate(std::size_t size, std::size_t alignment) { return mResource.allocate(size, alignment); }
  /// A copy of the texts, one behind the other.
  std::string_view store(std::string_view first, std::string_view second = {}, std::string_view third = {});

private:
  std::pmr::monotonic_buffer_resource mResource;
};

}
