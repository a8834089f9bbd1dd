#include "game_plugin/scenario/EntityList.h"

#include "game_plugin/scenario/Store.h"

#include <algorithm>

namespace script {

std::uint32_t detail::nextStoreEpoch() {
  static std::uint32_t epoch = 0;
  do
    ++epoch;
  while (epoch == 0 || epoch == ~0u);
  return epoch;
}

bool EntityList::contains(std::uint64_t id) const {
  if (mIds.size() <= SEARCH_LIMIT) return std::find(mIds.begin(), mIds.end(), id) != mIds.end();
  return mMembers.contains(id);
}

void EntityList::add(std::uint64_t id) {
  if (contains(id)) return;
  mIds.push_back(id);
  if (mIds.size() == SEARCH_LIMIT + 1)
    mMembers.insert(mIds.begin(), mIds.end());
  else if (mIds.size() > SEARCH_LIMIT)
    mMembers.insert(id);
}

void EntityList::remove(std::uint64_t id) {
  if (!contains(id)) return;
  mIds.erase(std::find(mIds.begin(), mIds.end(), id));
  if (mIds.size() <= SEARCH_LIMIT)
    mMembers.clear();
  else
    mMembers.erase(id);
}

void EntityList::clear() {
  mIds.clear();
  if (!mMembers.empty()) mMembers.clear();
}

namespace {

/// Buffers of finished evaluations. Scripts run on one thread.
std::vector<std::vector<std::uint64_t>>& spareBuffers() {
  static std::vector<std::vector<std::uint64_t>> buffers;
  return buffers;
}

constexpr std::size_t MAXIMUM_SPARE_BUFFERS = 16;

}

EntityIds::EntityIds() {
  std::vector<std::vector<std::uint64_t>>& spare = spareBuffers();
  if (spare.empty()) return;
  mIds = std::move(spare.back());
  spare.pop_back();
}

EntityIds::EntityIds(std::span<const std::uint64_t> ids) : EntityIds() { mIds.assign(ids.begin(), ids.end()); }

EntityIds::EntityIds(EntityIds&& other) noexcept : mIds(std::move(other.mIds)) {}

EntityIds::~EntityIds() {
  std::vector<std::vector<std::uint64_t>>& spare = spareBuffers();
  if (mIds.capacity() == 0 || spare.size() >= MAXIMUM_SPARE_BUFFERS) return;
  mIds.clear();
  spare.push_back(std::move(mIds));
}

bool EntityIds::contains(std::uint64_t id) const { return std::find(mIds.begin(), mIds.end(), id) != mIds.end(); }

}
