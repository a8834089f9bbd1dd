#include "game_plugin/scenario/world/PlaceTree.h"

#include "qsf/base/Random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using script::PlaceTree;

namespace {

std::size_t walk(const std::vector<glm::vec3>& places, const glm::vec3& center, float range) {
  std::size_t count = 0;
  for (const glm::vec3& place : places) {
    const glm::vec3 way = place - center;
    if (range > std::sqrt(glm::dot(way, way))) ++count;
  }
  return count;
}

TEST(PlaceTreeTest, CountsWhatAWalkCounts) {
  std::vector<glm::vec3> places;
  const auto draw = [] { return static_cast<float>(qsf::Random::getRandomInt(-20, 20)); }; // many are exactly in range
  for (int i = 0; i < 2000; ++i)
    places.emplace_back(draw(), i % 3 ? 0 : draw(), draw());
  constexpr float FAR = std::numeric_limits<float>::max();
  for (const glm::vec3& odd : {glm::vec3(NAN, 0, 0), glm::vec3(0, INFINITY, 0), glm::vec3(FAR, 0, -FAR)})
    places.push_back(odd);
  const PlaceTree tree(places);
  for (const float range : {0.0f, 1.0f, 5.0f, 13.0f, 40.0f, 1000.0f, -3.0f, NAN, INFINITY})
    for (std::size_t i = 0; i < places.size(); i += 13)
      EXPECT_EQ(tree.countCloser(places[i], range, 9999), walk(places, places[i], range)) << range << " " << i;
  EXPECT_EQ(tree.countCloser({NAN, 0, 0}, 10, 9999), 0u);
}

TEST(PlaceTreeTest, EndsAtEnough) {
  const PlaceTree tree(std::vector<glm::vec3>(500, glm::vec3(1, 2, 3)));
  EXPECT_EQ(tree.countCloser({1, 2, 3}, 1, 9999), 500u);
  EXPECT_EQ(tree.countCloser({1, 2, 3}, 1, 20), 20u);
  EXPECT_EQ(tree.countCloser({1, 2, 3}, 0, 20), 0u);
  EXPECT_EQ(PlaceTree({}).countCloser({0, 0, 0}, 1, 1), 0u);
}

}
