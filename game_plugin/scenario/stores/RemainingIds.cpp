#include "game_plugin/scenario/stores/RemainingIds.h"

#include <bit>
#include <stdexcept>

namespace script {

namespace {

std::size_t lowestBit(std::size_t number) { return number & (~number + 1); }

}

RemainingIds::RemainingIds(std::vector<std::uint64_t> ids)
    : mIds(std::move(ids)), mCounts(mIds.size() + 1), mLeft(mIds.size()) {
  for (std::size_t i = 1; i < mCounts.size(); ++i)
    mCounts[i] = lowestBit(i);
}

std::uint64_t RemainingIds::take(std::size_t index) {
  if (index >= mLeft) throw std::out_of_range("there is no id left at this place");
  std::size_t before = 0; // ids in front of the wanted one, taken ones included
  for (std::size_t step = std::bit_floor(mIds.size()); step > 0; step /= 2)
    if (before + step <= mIds.size() && mCounts[before + step] <= index) {
      before += step;
      index -= mCounts[before];
    }
  for (std::size_t i = before + 1; i < mCounts.size(); i += lowestBit(i))
    --mCounts[i];
  --mLeft;
  return mIds[before];
}

}
