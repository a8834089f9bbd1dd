#include "qsf/base/Random.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

using namespace script;

namespace {

using Ids = std::vector<std::uint64_t>;

int draw(const Ids& ids) { return qsf::Random::getRandomInt(0, static_cast<int>(ids.size()) - 1); }

float distance(std::uint64_t a, std::uint64_t b) {
  const auto place = [](std::uint64_t id) {
    return qsf::getMainMap().getEntityById(id)->getComponent<qsf::TransformComponent>()->getPosition();
  };
  const glm::vec3 way = place(a) - place(b);
  return std::sqrt(glm::dot(way, way));
}

/// The ids without each occurrence of one of them.
Ids without(Ids ids, std::uint64_t id) {
  std::erase(ids, id);
  return ids;
}

/// The seed and those closest to it, walking everything for each one.
Ids closestByWalking(Ids left, float wanted, std::uint64_t seed) {
  Ids picked{seed};
  for (;;) {
    left = without(left, picked.back());
    std::uint64_t best = 0;
    float bestDistance = 999999.0f;
    for (const std::uint64_t id : left)
      if (bestDistance > distance(id, seed)) {
        best = id;
        bestDistance = distance(id, seed);
      }
    if (best == 0 || static_cast<float>(picked.size()) == wanted) return picked;
    picked.push_back(best);
  }
}

/// What PickUnitsFromEntityList promises, without anything that makes it fast.
Ids pickByWalking(const Ids& all, float wanted, float range) {
  if (wanted >= static_cast<float>(all.size())) return all;
  if (wanted == 1.0f) return {all[static_cast<std::size_t>(draw(all))]};
  for (Ids seeds = all; !seeds.empty();) {
    const int drawn = draw(seeds);
    const std::uint64_t seed = seeds[static_cast<std::size_t>(drawn)];
    Ids cluster{seed};
    for (const std::uint64_t id : without(all, seed)) {
      if (range > distance(id, seed)) cluster.push_back(id);
      if (static_cast<float>(cluster.size()) == wanted) return cluster;
    }
    seeds.erase(seeds.begin() + drawn);
  }
  return closestByWalking(all, wanted, all[static_cast<std::size_t>(draw(all))]);
}

/// Effects that draw at random, on a bare map of units that stand on a grid at random.
class DrawingEffectsTest : public testing::Test {
protected:
  Ids addUnits(int count) {
    Ids ids;
    const auto drawPlace = [] { return static_cast<float>(qsf::Random::getRandomInt(0, 12)); };
    for (int i = 0; i < count; ++i) {
      ids.push_back(nextId++);
      qsf::getMainMap()
          .createEntity(ids.back())
          ->getOrCreateComponent<qsf::TransformComponent>()
          ->setPosition({drawPlace(), i % 4 == 0 ? drawPlace() : 0, drawPlace()});
    }
    return ids;
  }
  void run(const Words& words) { runner.run(words); }
  Ids list(const std::string& name) const { return runner.list(name); }

  LogCapture host;
  EntryRunner runner;
  ScenarioHandler* handler = runner.handler;
  std::uint64_t nextId = 100;
};

TEST_F(DrawingEffectsTest, PickUnitsDrawsAndPicksAsAPlainWalk) {
  int clusters = 0;
  int fallbacks = 0;
  for (const int size : {1, 2, 3, 9, 40, 120}) {
    const Ids all = addUnits(size);
    std::string in;
    for (const std::uint64_t id : all)
      in += (in.empty() ? "" : " ") + std::to_string(id);
    for (const char* wanted : {"-1", "0", "1", "1.5", "2", "3", "5", "8", "30", "119", "120", "nan"})
      for (const char* range : {"-1", "0", "1", "3", "5", "9", "17", "9999999", "inf", "nan"}) {
        SCOPED_TRACE(testing::Message() << size << " units, " << wanted << " wanted, range " << range);
        const auto seed = static_cast<std::uint64_t>(size) + 7;
        qsf::Random::setSeed(seed);
        const Ids expected = pickByWalking(all, std::strtof(wanted, nullptr), std::strtof(range, nullptr));
        const int expectedNextDraw = qsf::Random::getRandomInt(0, 1'000'000);
        qsf::Random::setSeed(seed);
        const std::size_t lines = host.lines.size();
        run({"PickUnitsFromEntityList", in, "out", "true", wanted, range});
        ASSERT_EQ(list("out"), expected);
        ASSERT_EQ(qsf::Random::getRandomInt(0, 1'000'000), expectedNextDraw);
        (host.lines.size() > lines ? fallbacks : clusters) += 1;
      }
  }
  EXPECT_GT(clusters, 100);
  EXPECT_GT(fallbacks, 100);
}

/// Each occurrence is drawn and counted for itself, though the new list gets the id once.
TEST_F(DrawingEffectsTest, PickUnitsCountsIdsThatAreListedTwice) {
  addUnits(3);
  for (const char* wanted : {"3", "4", "5", "5.5"})
    for (std::uint64_t seed = 1; seed < 20; ++seed) {
      SCOPED_TRACE(testing::Message() << wanted << " wanted, random seed " << seed);
      qsf::Random::setSeed(seed);
      handler->ClearEntityList(std::string("expected"));
      for (const std::uint64_t id : pickByWalking({100, 100, 101, 101, 101, 102}, std::strtof(wanted, nullptr), 9))
        handler->AddToEntityList(std::string("expected"), id);
      qsf::Random::setSeed(seed);
      run({"PickUnitsFromEntityList", "100 100 101 101 101 102", "out", "true", wanted, "9"});
      EXPECT_EQ(list("out"), list("expected"));
    }
}

/// These draws are those of the C library, so the game's own random numbers go on as if nothing had been drawn.
TEST_F(DrawingEffectsTest, GetEntitiesOutOfEntityListDrawsFromTheCLibrary) {
  for (const std::size_t number : {1u, 4u, 10u, 50u}) {
    Ids left{3, 1, 4, 15, 9, 2, 6, 5, 35, 8};
    run({"ClearEntityIdList", "l"});
    for (const std::uint64_t id : left)
      handler->AddToEntityList(std::string("l"), id);
    std::srand(5);
    Ids expected;
    while (expected.size() < number && !left.empty()) {
      const auto drawn =
          left.begin() + static_cast<std::ptrdiff_t>(static_cast<std::size_t>(std::rand()) % left.size());
      expected.push_back(*drawn);
      left.erase(drawn);
    }
    std::srand(5);
    qsf::Random::setSeed(1);
    const int gamesOwn = qsf::Random::getRandomInt(0, 1'000'000);
    qsf::Random::setSeed(1);
    run({"GetEntitiesOutOfEntityList", "l", std::to_string(number)});
    EXPECT_EQ(list("l"), expected);
    EXPECT_EQ(qsf::Random::getRandomInt(0, 1'000'000), gamesOwn);
  }
}

}
