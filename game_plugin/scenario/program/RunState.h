#pragma once
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace script {

/// Eight bytes of a run, zero at first.
struct StateCell {
  alignas(std::uint64_t) std::byte bytes[sizeof(std::uint64_t)] = {};
};

/// What a record remembers from tick to tick is no part of the program, which many runs share: each run holds a cell
/// for it, zero at first, and the record its number. ScenarioHandler::stateOf gives the cell.
template <class T> class RunState {
public:
  static_assert(std::is_trivially_copyable_v<T> && sizeof(T) <= sizeof(StateCell), "a cell is eight bytes");

  RunState() = default;
  explicit RunState(std::uint32_t cell) : mCell(cell) {}
  std::uint32_t cell() const { return mCell; }

private:
  std::uint32_t mCell = 0;
};

}
