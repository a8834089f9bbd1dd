#include "game_plugin/scenario/shared/lists/ClosestSearch.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

TEST(ClosestSearchTest, PicksEachIdOnceAndCountsWhatWasThere) {
  const LogCapture host;
  EntryRunner runner;
  for (const std::uint64_t id : {100, 101, 102, 103})
    qsf::getMainMap().createEntity(id)->getOrCreateComponent<qsf::TransformComponent>()->setPosition(
        {id == 100 ? 0.0f : static_cast<float>(200 - id), 0, 0});
  const qsf::Entity& reference = *qsf::getMainMap().getEntityById(100);
  const std::vector<std::uint64_t> candidates{101, 102, 101, 103, 102};
  const std::vector<Argument> numbers = runner.arguments({"3", "9"});
  std::vector<std::uint64_t> picked{100};
  pickClosest(*runner.handler, candidates, reference, numbers[0], picked);
  EXPECT_EQ(picked, (std::vector<std::uint64_t>{100, 103, 102}));
  picked.clear();
  pickClosest(*runner.handler, candidates, reference, numbers[1], picked);
  EXPECT_EQ(picked, (std::vector<std::uint64_t>{103, 102, 101}));
}

}
