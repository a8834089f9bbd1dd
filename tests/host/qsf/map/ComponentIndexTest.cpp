#include "qsf/map/ComponentIndex.h"

#include "host/qsf/TestWorld.h"
#include "qsf/base/Random.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/map/ComponentMapQuery.h"

#include <chrono>
#include <set>

using host_test::Ids;
using host_test::idsOf;
using qsf::LinkComponent;
using qsf::MetadataComponent;
using qsf::TransformComponent;

namespace {

class ComponentIndexTest : public host_test::WorldTest {
protected:
  Ids linked() { return idsOf(map.getComponentInstances(LinkComponent::COMPONENT_ID)); }
};

TEST_F(ComponentIndexTest, ComesByAscendingIdWhateverTheOrderOfChanges) {
  std::set<std::uint64_t> expected;
  for (std::uint64_t id = 100; id < 200; ++id)
    makeEntity(id);
  for (int round = 0; round < 1000; ++round) {
    const auto id = static_cast<std::uint64_t>(qsf::Random::getRandomInt(100, 199));
    if (expected.insert(id).second) {
      map.getEntityById(id)->getOrCreateComponent<LinkComponent>();
    } else {
      map.getEntityById(id)->destroyComponentById(LinkComponent::COMPONENT_ID);
      expected.erase(id);
    }
    if (round % 7 == 0) {
      EXPECT_EQ(linked(), Ids(expected.begin(), expected.end()));
    }
  }
}

TEST_F(ComponentIndexTest, CircleQueriesFollowMovesAdditionsAndRemovals) {
  const qsf::ComponentMapQuery query(map);
  for (std::uint64_t id = 100; id < 300; ++id)
    makeEntity(id);
  for (int round = 0; round < 2000; ++round) {
    const auto id = static_cast<std::uint64_t>(qsf::Random::getRandomInt(100, 299));
    const glm::vec3 place(qsf::Random::getRandomInt(-90, 90), 0, qsf::Random::getRandomInt(-90, 90));
    if (const qsf::Entity* entity = map.getEntityById(id); !entity)
      makeEntity(id, place);
    else if (round % 5 == 0)
      map.destroyObjectById(id);
    else
      entity->getComponent<TransformComponent>()->setPosition(place);
    if (round % 11 != 0) continue;
    const glm::vec3 center(qsf::Random::getRandomInt(-90, 90), 0, qsf::Random::getRandomInt(-90, 90));
    const float radius = static_cast<float>(qsf::Random::getRandomInt(0, 80));
    Ids expected;
    for (const qsf::Component* component : map.getComponentInstances(MetadataComponent::COMPONENT_ID)) {
      const glm::vec3 way = component->getEntity().getComponent<TransformComponent>()->getPosition() - center;
      if (way.x * way.x + way.z * way.z <= radius * radius) expected.push_back(component->getEntityId());
    }
    EXPECT_EQ(idsOf(query.getInstancesInCircleById(MetadataComponent::COMPONENT_ID, center, radius)), expected);
  }
}

/// What scripts do to whole maps: each of these took a time that grew with the square of the number, half a minute and
/// more for all of them.
TEST_F(ComponentIndexTest, FiftyThousandEntitiesOnOneSpotCanBeLinkedUnlinkedEquippedAndDestroyed) {
  const auto begin = std::chrono::steady_clock::now();
  constexpr std::uint64_t LAST = 50100;
  makeEntity(99);
  for (std::uint64_t id = 100; id < LAST; ++id)
    makeEntity(id);
  const qsf::ComponentMapQuery query(map);
  EXPECT_EQ(50001u, query.getInstancesInCircleById(MetadataComponent::COMPONENT_ID, {0, 0, 0}, 1).size());
  for (std::uint64_t id = LAST - 1; id >= 100; --id)
    map.getEntityById(id)->getOrCreateComponent<LinkComponent>()->setParentId(99);
  const auto* parent = map.getEntityById(99)->getComponent<LinkComponent>();
  EXPECT_EQ(50000u, parent->getChildLinks().size());
  EXPECT_EQ(LAST - 1, parent->getChildLinks().front()->getEntityId());
  for (std::uint64_t id = 100; id < LAST; id += 2)
    map.getEntityById(id)->getComponent<LinkComponent>()->unlinkFromParent();
  EXPECT_EQ(25000u, parent->getChildLinks().size());
  EXPECT_EQ(LAST - 1, parent->getChildLinks().front()->getEntityId());
  EXPECT_EQ(101u, parent->getChildLinks().back()->getEntityId());
  for (std::uint64_t id = 100; id < LAST; ++id)
    map.destroyObjectById(id);
  EXPECT_TRUE(parent->getChildLinks().empty());
  EXPECT_EQ((Ids{99}), linked());
  EXPECT_EQ((Ids{99}), idsOf(query.getInstancesInCircleById(MetadataComponent::COMPONENT_ID, {0, 0, 0}, 1)));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

}
