#pragma once
#include <cstdint>
#include <span>
#include <vector>

namespace script {

/// The value of a list variable: entity ids in the order they were added, none twice.
class EntityList {
public:
  std::span<const std::uint64_t> ids() const { return mIds; }
  std::size_t size() const { return mIds.size(); }
  bool contains(std::uint64_t id) const;
  /// Nothing happens if the list holds the id already.
  void add(std::uint64_t id);
  void remove(std::uint64_t id);
  /// Removes many at once; they come in ascending order.
  void removeAll(std::span<const std::uint64_t> sortedIds);
  /// Keeps its memory, since lists are filled anew in each tick.
  void clear();

private:
  static constexpr std::size_t SEARCH_LIMIT = 32;
  bool isIndexed() const { return !mIsAscending && mIds.size() > SEARCH_LIMIT; }
  /// The slot that holds the id's index, or the free one where it belongs.
  std::size_t findSlot(std::uint64_t id) const;
  void rebuildIndex();
  void updateAfterRemoval();

  std::vector<std::uint64_t> mIds;
  /// Whether each id is above the one before. The map gives ids that way, and most lists are filled from it: adding at
  /// the end then needs no search.
  bool mIsAscending = true;
  /// Hash table of the ids' indices, from 1, with 0 for a free slot; at most half full. In use while isIndexed.
  std::vector<std::uint32_t> mSlots;
};

/// A private copy of a list's ids, taken for one evaluation. Its memory is lent and goes back, so a tick allocates
/// nothing.
class EntityIds {
public:
  EntityIds();
  explicit EntityIds(std::span<const std::uint64_t> ids);
  ~EntityIds();
  EntityIds(EntityIds&& other) noexcept;
  EntityIds& operator=(EntityIds&&) = delete;

  auto begin() const { return mIds.begin(); }
  auto end() const { return mIds.end(); }
  std::size_t size() const { return mIds.size(); }
  bool empty() const { return mIds.empty(); }
  std::uint64_t operator[](std::size_t index) const { return mIds[index]; }
  std::uint64_t front() const { return mIds.front(); }
  bool contains(std::uint64_t id) const;
  /// The ids to change at will: entries shuffle, filter and draw from them.
  std::vector<std::uint64_t>& vector() { return mIds; }
  const std::vector<std::uint64_t>& vector() const { return mIds; }

private:
  std::vector<std::uint64_t> mIds;
};

}
