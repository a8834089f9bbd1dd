#pragma once
#include <cstdint>
#include <map>

namespace script::multiplayer {

/// What trigger instructions this machine has sent, and which arrived for a trigger that no running script has, by
/// hash. For tools, since nothing of it is visible in a game. Counted from the module's start.
class Instructions {
public:
  using Counts = std::map<std::uint32_t, std::uint64_t>;
  static void noteSent(std::uint32_t hash);
  static void noteLost(std::uint32_t hash);
  static const Counts& sent();
  static const Counts& lost();
  static void clear();
};

}
