#include "qsf/component/LinkComponent.h"
#include "host/qsf/TestWorld.h"

#include <glm/gtc/constants.hpp>

using host_test::Ids;
using host_test::idsOf;
using qsf::LinkComponent;
using qsf::TransformComponent;

namespace {

class LinkComponentTest : public host_test::WorldTest {
protected:
  LinkComponent& link(std::uint64_t child, std::uint64_t parent) {
    LinkComponent& made = *map.getEntityById(child)->getOrCreateComponent<LinkComponent>();
    made.setParentId(parent);
    return made;
  }
  TransformComponent& transform(std::uint64_t id) { return *map.getEntityById(id)->getComponent<TransformComponent>(); }
  const glm::quat quarterTurn = glm::angleAxis(glm::half_pi<float>(), glm::vec3(0, 1, 0));
};

void expectNear(const glm::vec3& expected, const glm::vec3& actual) {
  EXPECT_LT(glm::length(expected - actual), 1e-4f) << actual.x << " " << actual.y << " " << actual.z;
}

TEST_F(LinkComponentTest, LinkingMakesTheParentsComponentAndKeepsThePlace) {
  makeEntity(100, {10, 0, 0});
  makeEntity(101, {12, 1, 0});
  LinkComponent& child = link(101, 100);
  EXPECT_EQ((Ids{101}), idsOf(map.getEntityById(100)->getComponent<LinkComponent>()->getChildLinks()));
  EXPECT_EQ(100u, child.getParentLink()->getEntityId());
  expectNear({12, 1, 0}, transform(101).getPosition());
  expectNear({2, 1, 0}, child.getLocalPosition());
}

TEST_F(LinkComponentTest, ChildrenFollowMovesAndTurnsOfTheirAncestors) {
  makeEntity(100);
  makeEntity(101, {0, 0, 2});
  makeEntity(102, {0, 0, 3});
  link(101, 100);
  link(102, 101);
  transform(100).setPositionAndRotation({10, 0, 0}, quarterTurn);
  expectNear({12, 0, 0}, transform(101).getPosition());
  expectNear({13, 0, 0}, transform(102).getPosition());
  EXPECT_NEAR(quarterTurn.y, transform(102).getRotation().y, 1e-5);
}

TEST_F(LinkComponentTest, LocalAndWorldTransformAgreeWhicheverIsSet) {
  makeEntity(100, {10, 0, 0});
  makeEntity(101);
  LinkComponent& child = link(101, 100);
  child.setLocalPosition({0, 5, 0});
  expectNear({10, 5, 0}, transform(101).getPosition());
  child.setLocalRotation(quarterTurn);
  EXPECT_NEAR(quarterTurn.y, transform(101).getRotation().y, 1e-5);
  transform(101).setPosition({11, 0, 0});
  expectNear({1, 0, 0}, child.getLocalPosition());
}

TEST_F(LinkComponentTest, UnlinkingKeepsThePlaceAndEndsTheFollowing) {
  makeEntity(100);
  makeEntity(101, {1, 0, 0});
  LinkComponent& child = link(101, 100);
  child.setParentId(qsf::UNINITIALIZED_ID);
  EXPECT_EQ(nullptr, child.getParentLink());
  transform(100).setPosition({50, 0, 0});
  expectNear({1, 0, 0}, transform(101).getPosition());
  child.unlinkFromParent(); // nothing to do
  EXPECT_TRUE(map.getEntityById(100)->getComponent<LinkComponent>()->getChildLinks().empty());
}

TEST_F(LinkComponentTest, CyclesItselfAndMissingParentsAreRefused) {
  makeEntity(100);
  makeEntity(101);
  makeEntity(102);
  link(101, 100);
  link(102, 101);
  link(100, 102);
  link(100, 100);
  link(102, 999);
  EXPECT_EQ(qsf::UNINITIALIZED_ID, map.getEntityById(100)->getComponent<LinkComponent>()->getParentId());
  EXPECT_EQ(101u, map.getEntityById(102)->getComponent<LinkComponent>()->getParentId());
  EXPECT_EQ(3u, log.size());
}

TEST_F(LinkComponentTest, ANewParentTakesTheChildOver) {
  makeEntity(100);
  makeEntity(101, {5, 0, 0});
  makeEntity(102);
  link(102, 100);
  link(102, 101);
  EXPECT_TRUE(map.getEntityById(100)->getComponent<LinkComponent>()->getChildLinks().empty());
  transform(101).setPosition({6, 0, 0});
  expectNear({1, 0, 0}, transform(102).getPosition());
}

TEST_F(LinkComponentTest, ALongChainMovesWithoutDeepRecursion) {
  makeEntity(100);
  for (std::uint64_t id = 101; id < 20100; ++id)
    makeEntity(id).getOrCreateComponent<LinkComponent>()->setParentId(id - 1);
  transform(100).setPosition({1, 0, 0});
  expectNear({1, 0, 0}, transform(20099).getPosition());
}

TEST_F(LinkComponentTest, TheParentIsSetByReflectionToo) {
  makeEntity(100);
  qsf::Component* child = makeEntity(101).getOrCreateComponentById(LinkComponent::COMPONENT_ID);
  child->setPropertyByString("ParentId", "100");
  EXPECT_EQ(1u, map.getEntityById(100)->getComponent<LinkComponent>()->getChildLinks().size());
  EXPECT_EQ("100", child->getPropertyAsString("ParentId"));
  child->setPropertyByString("ParentId", "18446744073709551615");
  EXPECT_EQ("18446744073709551615", child->getPropertyAsString("ParentId"));
}

TEST_F(LinkComponentTest, DestroyingTheComponentUnlinks) {
  makeEntity(100);
  makeEntity(101);
  link(101, 100);
  map.getEntityById(100)->destroyComponentById(LinkComponent::COMPONENT_ID);
  EXPECT_EQ(nullptr, map.getEntityById(101)->getComponent<LinkComponent>()->getParentLink());
}

TEST_F(LinkComponentTest, RotationsAreKeptToTheBitOrMadeUnit) {
  makeEntity(100);
  transform(100).setPropertyByString("Rotation", "0.707107 0 0.707107 0");
  EXPECT_EQ("0.707107 0 0.707107 0", transform(100).getPropertyAsString("Rotation"));
  transform(100).setRotation({2, 0, 0, 0});
  EXPECT_EQ("1 0 0 0", transform(100).getPropertyAsString("Rotation"));
  transform(100).setRotation({0, 0, 0, 0});
  EXPECT_EQ("1 0 0 0", transform(100).getPropertyAsString("Rotation"));
}

}
