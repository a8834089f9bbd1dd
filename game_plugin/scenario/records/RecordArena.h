#pragma once
#include <cstddef>
#include <new>
#include <string_view>

namespace script {

/// Memory of records. They live as long as the process, so nothing is ever given back; records of a script lie side by
/// side, in the order in which a tick reads them.
class RecordArena {
public:
  static void* allocate(std::size_t size, std::size_t alignment);

  /// A copy of the texts, one behind the other.
  static std::string_view store(std::string_view first, std::string_view second, std::string_view third);

  template <class T> static T* create() { return new (allocate(sizeof(T), alignof(T))) T(); }
};

}
