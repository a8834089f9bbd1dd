#pragma once
#include <cstdint>
#include <span>
#include <unordered_set>
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
  /// Keeps its memory, since lists are filled anew in each tick.
  void clear();

private:
  static constexpr std::size_t SEARCH_LIMIT = 32;
  std::vector<std::uint64_t> mIds;
  std::unordered_set<std::uint64_t> mMembers; ///< filled beyond SEARCH_LIMIT ids
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
