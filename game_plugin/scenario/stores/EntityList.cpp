#include "game_plugin/scenario/stores/EntityList.h"

#include <algorithm>
#include <bit>

namespace script {

std::size_t EntityList::findSlot(std::uint64_t id) const {
  const std::size_t mask = mSlots.size() - 1;
  std::size_t slot = (id * 0x9E3779B97F4A7C15u >> 32) & mask;
  while (mSlots[slot] != 0 && mIds[mSlots[slot] - 1] != id)
    slot = (slot + 1) & mask;
  return slot;
}

void EntityList::rebuildIndex() {
  mSlots.assign(std::bit_ceil(mIds.size() * 4), 0);
  for (std::size_t i = 0; i < mIds.size(); ++i)
    mSlots[findSlot(mIds[i])] = static_cast<std::uint32_t>(i + 1);
}

bool EntityList::contains(std::uint64_t id) const {
  if (mIsAscending) return std::binary_search(mIds.begin(), mIds.end(), id);
  if (isIndexed()) return mSlots[findSlot(id)] != 0;
  return std::find(mIds.begin(), mIds.end(), id) != mIds.end();
}

void EntityList::add(std::uint64_t id) {
  if (mIsAscending && (mIds.empty() || id > mIds.back())) {
    mIds.push_back(id);
    return;
  }
  if (contains(id)) return;
  const bool fits = isIndexed() && (mIds.size() + 1) * 2 <= mSlots.size();
  const std::size_t slot = fits ? findSlot(id) : 0;
  mIds.push_back(id);
  mIsAscending = false;
  if (fits)
    mSlots[slot] = static_cast<std::uint32_t>(mIds.size());
  else if (isIndexed())
    rebuildIndex();
}

void EntityList::updateAfterRemoval() {
  if (mIds.empty()) mIsAscending = true;
  if (isIndexed()) rebuildIndex(); // those behind what went have moved up
}

void EntityList::remove(std::uint64_t id) {
  const auto found = std::find(mIds.begin(), mIds.end(), id);
  if (found == mIds.end()) return;
  mIds.erase(found);
  updateAfterRemoval();
}

void EntityList::removeAll(std::span<const std::uint64_t> sortedIds) {
  std::erase_if(mIds, [=](std::uint64_t id) { return std::binary_search(sortedIds.begin(), sortedIds.end(), id); });
  updateAfterRemoval();
}

void EntityList::clear() {
  mIds.clear();
  mIsAscending = true;
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
