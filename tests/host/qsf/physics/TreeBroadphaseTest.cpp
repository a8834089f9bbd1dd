#include "qsf/physics/TreeBroadphase.h"

#include "qsf/base/Random.h"

#include <gtest/gtest.h>

#include <chrono>
#include <set>

using qsf::TreeBroadphase;

namespace {

struct Box {
  btVector3 minimum, maximum;
};

struct Collector : btBroadphaseRayCallback {
  std::set<const btBroadphaseProxy*> found;
  bool process(const btBroadphaseProxy* proxy) override { return found.insert(proxy).second; }
  /// As the collision world prepares a ray.
  void aim(const btVector3& from, const btVector3& to) {
    const btVector3 direction = (to - from).normalized();
    for (int i = 0; i < 3; ++i) {
      m_rayDirectionInverse[i] = direction[i] == 0 ? BT_LARGE_FLOAT : 1 / direction[i];
      m_signs[i] = m_rayDirectionInverse[i] < 0;
    }
    m_lambda_max = direction.dot(to - from);
  }
};

float draw(float limit) { return qsf::Random::getRandomFloat(-limit, limit); }

Box drawBox() {
  const btVector3 middle(draw(300), draw(20), draw(300));
  const btVector3 half(std::abs(draw(20)), std::abs(draw(10)), std::abs(draw(20)));
  return {middle - half, middle + half};
}

class TreeBroadphaseTest : public testing::Test {
protected:
  ~TreeBroadphaseTest() override {
    for (btBroadphaseProxy* proxy : proxies)
      broadphase.destroyProxy(proxy, nullptr);
  }
  btBroadphaseProxy* add(const Box& box) {
    return proxies.emplace_back(broadphase.createProxy(box.minimum, box.maximum, 0, nullptr, 1, 1, nullptr));
  }
  std::set<const btBroadphaseProxy*> along(const btVector3& from, const btVector3& to) {
    Collector collector;
    collector.aim(from, to);
    broadphase.rayTest(from, to, collector);
    return collector.found;
  }
  TreeBroadphase broadphase;
  std::vector<btBroadphaseProxy*> proxies;
};

TEST_F(TreeBroadphaseTest, FindsExactlyTheBoxesThatMeetABox) {
  for (int i = 0; i < 500; ++i)
    add(drawBox());
  for (int round = 0; round < 200; ++round) {
    const Box moved = drawBox();
    broadphase.setAabb(proxies[static_cast<std::size_t>(round)], moved.minimum, moved.maximum, nullptr);
    const Box asked = drawBox();
    std::set<const btBroadphaseProxy*> expected;
    for (const btBroadphaseProxy* proxy : proxies)
      if (TestAabbAgainstAabb2(asked.minimum, asked.maximum, proxy->m_aabbMin, proxy->m_aabbMax))
        expected.insert(proxy);
    Collector collector;
    broadphase.aabbTest(asked.minimum, asked.maximum, collector);
    EXPECT_EQ(collector.found, expected);
  }
}

TEST_F(TreeBroadphaseTest, FindsTheBoxesThatARayMeetsStraightDownToo) {
  for (int i = 0; i < 500; ++i)
    add(drawBox());
  std::size_t hits = 0;
  for (int round = 0; round < 200; ++round) {
    const btVector3 from(draw(300), 60, draw(300));
    const btVector3 to = round % 2 ? btVector3(draw(300), -60, draw(300)) : btVector3(from.x(), -60, from.z());
    std::set<const btBroadphaseProxy*> expected;
    for (const btBroadphaseProxy* proxy : proxies) {
      btScalar fraction = 1;
      btVector3 normal;
      if (btRayAabb(from, to, proxy->m_aabbMin, proxy->m_aabbMax, fraction, normal)) expected.insert(proxy);
    }
    hits += expected.size();
    EXPECT_EQ(along(from, to), expected);
  }
  EXPECT_GT(hits, 100u);
}

TEST_F(TreeBroadphaseTest, ABoxThatWentIsFoundNoMore) {
  btBroadphaseProxy* proxy = add({{-1, -1, -1}, {1, 1, 1}});
  add({{-1, -1, -1}, {1, 1, 1}});
  EXPECT_EQ(along({0, 5, 0}, {0, -5, 0}).size(), 2u);
  broadphase.destroyProxy(proxy, nullptr);
  proxies.erase(proxies.begin());
  EXPECT_EQ(along({0, 5, 0}, {0, -5, 0}).size(), 1u);
}

TEST_F(TreeBroadphaseTest, ThousandsInARowOrOnOneSpotStayCheap) {
  const auto begin = std::chrono::steady_clock::now();
  for (int i = 0; i < 20000; ++i)
    add({btVector3(static_cast<float>(i) * 3, 0, 0), btVector3(static_cast<float>(i) * 3 + 2, 2, 2)});
  for (btBroadphaseProxy* proxy : proxies)
    broadphase.setAabb(proxy, {0, 0, 0}, {1, 1, 1}, nullptr);
  EXPECT_EQ(along({0.5f, 5, 0.5f}, {0.5f, -5, 0.5f}).size(), 20000u);
  // Some hundredths of a second; a tree as deep as it has boxes takes many seconds.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

}
