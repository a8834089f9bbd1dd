#pragma once
#include <cstdint>
#include <vector>

namespace script {

/// Ids of which one after another is taken out, by its place among those that are left, which keep their order. Taking
/// one costs the logarithm of their number, so that a script may draw thousands out of thousands.
class RemainingIds {
public:
  explicit RemainingIds(std::vector<std::uint64_t> ids);
  /// Number of ids that are left.
  std::size_t size() const { return mLeft; }
  /// Throws std::out_of_range if the index isn't below the size.
  std::uint64_t take(std::size_t index);

private:
  std::vector<std::uint64_t> mIds;
  /// A Fenwick tree: the element i, counted from 1, holds how many are left of the (i & -i) ids that end at i.
  std::vector<std::size_t> mCounts;
  std::size_t mLeft;
};

}
