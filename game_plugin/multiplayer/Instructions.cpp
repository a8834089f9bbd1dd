#include "game_plugin/multiplayer/Instructions.h"

namespace script::multiplayer {

namespace {

/// Hashes come from outside: they can't fill the memory.
constexpr std::size_t MOST_HASHES = 10'000;

Instructions::Counts sentCounts;
Instructions::Counts lostCounts;

void add(Instructions::Counts& counts, std::uint32_t hash) {
  if (counts.size() < MOST_HASHES || counts.contains(hash)) ++counts[hash];
}

}

void Instructions::noteSent(std::uint32_t hash) { add(sentCounts, hash); }
void Instructions::noteLost(std::uint32_t hash) { add(lostCounts, hash); }
const Instructions::Counts& Instructions::sent() { return sentCounts; }
const Instructions::Counts& Instructions::lost() { return lostCounts; }

void Instructions::clear() {
  sentCounts.clear();
  lostCounts.clear();
}

}
