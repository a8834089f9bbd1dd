#include "game_plugin/scenario/stores/RemainingIds.h"

#include "qsf/base/Random.h"

#include <gtest/gtest.h>

#include <stdexcept>

using script::RemainingIds;

namespace {

TEST(RemainingIdsTest, TakesWhatStandsThereAmongThoseThatAreLeft) {
  for (const int size : {1, 2, 7, 64, 65, 1000}) {
    std::vector<std::uint64_t> left;
    for (int i = 0; i < size; ++i)
      left.push_back(static_cast<std::uint64_t>(i) * 3 + 1);
    RemainingIds ids(left);
    while (!left.empty()) {
      ASSERT_EQ(ids.size(), left.size());
      const auto index = static_cast<std::size_t>(qsf::Random::getRandomInt(0, static_cast<int>(left.size()) - 1));
      ASSERT_EQ(ids.take(index), left[index]);
      left.erase(left.begin() + static_cast<std::ptrdiff_t>(index));
    }
  }
}

TEST(RemainingIdsTest, NothingIsLeftBehindTheEnd) {
  RemainingIds ids({5, 6});
  EXPECT_THROW(ids.take(2), std::out_of_range);
  EXPECT_EQ(ids.take(1), 6u);
  EXPECT_THROW(ids.take(1), std::out_of_range);
  EXPECT_EQ(ids.take(0), 5u);
  EXPECT_THROW(ids.take(0), std::out_of_range);
  EXPECT_THROW(RemainingIds({}).take(0), std::out_of_range);
}

}
