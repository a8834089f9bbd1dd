#pragma once
#include "game_plugin/scenario/program/ProgramMemory.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace script {

/// The records of one section, in their order. Fixed once the load has filled it; its memory is the program's, next to
/// the records themselves, and copies share it.
template <class T> class RecordList {
public:
  RecordList() = default;
  RecordList(ProgramMemory& memory, const std::vector<T*>& records)
      : mSize(static_cast<std::uint32_t>(records.size())) {
    if (records.empty()) return;
    mRecords = static_cast<T**>(memory.allocate(records.size() * sizeof(T*), alignof(T*)));
    std::copy(records.begin(), records.end(), mRecords);
  }

  T* const* begin() const { return mRecords; }
  T* const* end() const { return mRecords + mSize; }
  std::size_t size() const { return mSize; }
  bool empty() const { return mSize == 0; }
  T* operator[](std::size_t index) const { return mRecords[index]; }
  /// Throws std::out_of_range past the end.
  T* at(std::size_t index) const {
    if (index >= mSize) throw std::out_of_range("invalid vector<T> subscript");
    return mRecords[index];
  }

private:
  T** mRecords = nullptr;
  std::uint32_t mSize = 0;
};

}
