#include "host/qsf/TestWorld.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/EntityMapQuery.h"
#include "qsf/map/GroundMapQuery.h"
#include "qsf/map/LayerManager.h"

#include <chrono>
#include <cmath>

using host_test::Ids;
using host_test::idsOf;
using qsf::LinkComponent;
using qsf::MetadataComponent;
using qsf::TransformComponent;

namespace {

class MapTest : public host_test::WorldTest {
protected:
  Ids inCircle(const glm::vec3& center, float radius) {
    return idsOf(qsf::ComponentMapQuery(map).getInstancesInCircleById(MetadataComponent::COMPONENT_ID, center, radius));
  }
};

TEST_F(MapTest, NewEntitiesGetTheIdAfterTheHighestEverUsed) {
  EXPECT_EQ(2u, map.createEntity()->getId());
  EXPECT_EQ(50u, map.createEntity(50)->getId());
  map.destroyObjectById(50);
  EXPECT_EQ(51u, map.createEntity()->getId());
  EXPECT_EQ(nullptr, map.createEntity(51));
  EXPECT_EQ(nullptr, map.createEntity(qsf::UNINITIALIZED_ID));
}

TEST_F(MapTest, AReservedIdIsNobodysUntilItIsCreatedByName) {
  makeEntity(100);
  EXPECT_EQ(101u, map.reserveEntityId());
  EXPECT_EQ(102u, map.reserveEntityId());
  EXPECT_EQ(nullptr, map.getEntityById(101));
  EXPECT_EQ(103u, map.createEntity()->getId());
  ASSERT_NE(nullptr, map.createEntity(101));
  EXPECT_EQ(104u, map.createEntity()->getId());
}

TEST_F(MapTest, WhenTheHighestIdIsUsedAGapServes) {
  ASSERT_NE(nullptr, map.createEntity(qsf::UNINITIALIZED_ID - 1));
  EXPECT_EQ(2u, map.createEntity()->getId());
  EXPECT_EQ(3u, map.createEntity()->getId());
}

TEST_F(MapTest, ADestroyedEntityIsGoneAtOnceAndItsMemoryStaysUntilTheFramesEnd) {
  const qsf::Entity& entity = makeEntity(100);
  EXPECT_EQ((Ids{100}), inCircle({0, 0, 0}, 1));
  map.destroyObjectById(100);
  EXPECT_EQ(nullptr, map.getEntityById(100));
  EXPECT_TRUE(map.getComponentInstances(TransformComponent::COMPONENT_ID).empty());
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, 1));
  EXPECT_EQ(100u, entity.getId());
  map.destroyObjectById(100); // once more does nothing
  map.collectGarbage();
}

TEST_F(MapTest, DestroyingAnEntityFreesItsChildrenAndItsParent) {
  makeEntity(1000);
  makeEntity(1001).getOrCreateComponent<LinkComponent>()->setParentId(1000);
  makeEntity(1002).getOrCreateComponent<LinkComponent>()->setParentId(1001);
  map.destroyObjectById(1001);
  EXPECT_TRUE(map.getEntityById(1000)->getComponent<LinkComponent>()->getChildLinks().empty());
  EXPECT_EQ(qsf::UNINITIALIZED_ID, map.getEntityById(1002)->getComponent<LinkComponent>()->getParentId());
}

TEST_F(MapTest, ComponentsOfAClassComeByAscendingEntityId) {
  makeEntity(300);
  makeEntity(100);
  makeEntity(200);
  EXPECT_EQ((Ids{100, 200, 300}), idsOf(map.getComponentInstances(TransformComponent::COMPONENT_ID)));
  EXPECT_EQ((Ids{100, 200, 300}), idsOf(map.getEntities()));
  map.getEntityById(200)->destroyComponentById(MetadataComponent::COMPONENT_ID);
  EXPECT_EQ((Ids{100, 300}), idsOf(map.getComponentInstances(MetadataComponent::COMPONENT_ID)));
}

TEST_F(MapTest, AComponentOfAnUnknownClassIsNotMade) {
  EXPECT_EQ(nullptr, makeEntity(100).getOrCreateComponentById("qsf::NoSuchComponent"));
  EXPECT_EQ(nullptr, makeEntity(101).getOrCreateComponentById("qsf::WaitAction"));
  EXPECT_EQ(2u, map.getEntityById(101)->getComponents().size());
}

TEST_F(MapTest, TheChangesCountGrowsWithEachComponentMadeOrDestroyed) {
  qsf::Entity& entity = makeEntity(100);
  const std::uint32_t before = entity.getComponentChangesCount();
  entity.getOrCreateComponent<LinkComponent>();
  entity.getOrCreateComponent<LinkComponent>();
  EXPECT_EQ(before + 1, entity.getComponentChangesCount());
  entity.destroyComponentById(LinkComponent::COMPONENT_ID);
  EXPECT_EQ(before + 2, entity.getComponentChangesCount());
}

TEST_F(MapTest, ACircleMeasuresOnTheGroundAndHoldsItsBorder) {
  makeEntity(100, {3, 500, 4});
  makeEntity(101, {0, 0, 5.01f});
  makeEntity(102, {-200, 0, 0});
  EXPECT_EQ((Ids{100}), inCircle({0, 0, 0}, 5));
  EXPECT_EQ((Ids{100, 101, 102}), inCircle({0, 0, 0}, 1000));
  EXPECT_EQ((Ids{100, 101, 102}), inCircle({0, 0, 0}, INFINITY));
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, -1));
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, NAN));
  EXPECT_EQ(Ids(), inCircle({NAN, 0, 0}, 10));
}

TEST_F(MapTest, ACircleFollowsMovesAndNewComponents) {
  qsf::Entity& entity = makeEntity(100, {500, 0, 0});
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, 10));
  entity.getComponent<TransformComponent>()->setPosition({1, 0, 1});
  EXPECT_EQ((Ids{100}), inCircle({0, 0, 0}, 10));
  makeEntity(101);
  EXPECT_EQ((Ids{100, 101}), inCircle({0, 0, 0}, 10));
  entity.getComponent<TransformComponent>()->setPosition({NAN, INFINITY, -1e30f});
  EXPECT_EQ((Ids{101}), inCircle({0, 0, 0}, 10));
  entity.getComponent<TransformComponent>()->setPosition({1e30f, 0, -1e30f});
  EXPECT_EQ((Ids{100}), inCircle({1e30f, 0, -1e30f}, 10));
  entity.getComponent<TransformComponent>()->setPosition({2, 0, 2});
  EXPECT_EQ((Ids{100, 101}), inCircle({0, 0, 0}, 10));
}

TEST_F(MapTest, WhatHasNoTransformStandsNowhere) {
  qsf::Entity& entity = *map.createEntity(100);
  entity.getOrCreateComponent<MetadataComponent>();
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, 10));
  entity.getOrCreateComponent<TransformComponent>();
  EXPECT_EQ((Ids{100}), inCircle({0, 0, 0}, 10));
  entity.destroyComponentById(TransformComponent::COMPONENT_ID);
  EXPECT_EQ(Ids(), inCircle({0, 0, 0}, 10));
}

TEST_F(MapTest, ASmallCircleAmongManyEntitiesCostsLittle) {
  for (std::uint64_t id = 100; id < 50100; ++id)
    makeEntity(id, {static_cast<float>(id % 250) * 8 - 1000, 0, static_cast<float>(id / 250) * 8 - 1000});
  ASSERT_FALSE(inCircle({0, 0, 0}, 20).empty());
  const auto begin = std::chrono::steady_clock::now();
  std::size_t found = 0;
  for (int i = 0; i < 1000; ++i)
    found += inCircle({static_cast<float>(i % 900), 0, 0}, 20).size();
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
  EXPECT_GT(found, 10000u);
  EXPECT_LT(passed.count(), 2.0); // a walk over all would take minutes under a sanitizer, seconds without
}

TEST_F(MapTest, EntitiesAreFoundByTheirExactName) {
  makeEntity(200).getComponent<MetadataComponent>()->setName("House");
  makeEntity(100).getComponent<MetadataComponent>()->setName("House");
  makeEntity(300).getComponent<MetadataComponent>()->setName("house");
  EXPECT_EQ((Ids{100, 200}), idsOf(qsf::EntityMapQuery(map).getAllInstancesByName("House")));
  EXPECT_EQ(Ids(), idsOf(qsf::EntityMapQuery(map).getAllInstancesByName("Hous")));
}

TEST_F(MapTest, ComponentsRunFromTheMapsStartOn) {
  const qsf::Entity& entity = makeEntity(100);
  EXPECT_FALSE(entity.getComponent<TransformComponent>()->isRunning());
  map.startup();
  EXPECT_TRUE(entity.getComponent<TransformComponent>()->isRunning());
  EXPECT_TRUE(makeEntity(101).getComponent<TransformComponent>()->isRunning());
  EXPECT_TRUE(map.isSimulating());
  host.getJobManagers().setPaused(true);
  EXPECT_FALSE(map.isSimulating());
  host.getJobManagers().setPaused(false);
  map.setSimulatingMode(false);
  EXPECT_FALSE(map.isSimulating());
  EXPECT_TRUE(host.getJobManagers().isSimulationHeld());
  map.clear();
  EXPECT_FALSE(host.getJobManagers().isSimulationHeld());
  EXPECT_EQ(0u, map.getNumberOfEntities());
  EXPECT_FALSE(map.isStarted());
}

TEST_F(MapTest, TheGroundIsAskedForItsHeight) {
  mountBase();
  map.load("em5/map/test/step");
  float height = -1;
  EXPECT_TRUE(qsf::GroundMapQuery(map, -1, nullptr).getHeightAt({5, 70, 0}, height, true));
  EXPECT_EQ(10, height);
  EXPECT_TRUE(qsf::GroundMapQuery(map).getHeightAt({-5, 70, 0}, height));
  EXPECT_EQ(0, height);
}

TEST_F(MapTest, ALayerTakesItsEntitiesOffTheMapAndBringsThemBack) {
  qsf::LayerManager& layers = host.getLayerManager();
  qsf::Layer& night = *layers.createLayer("Night");
  EXPECT_EQ(nullptr, layers.createLayer("Night"));
  makeEntity(100);
  makeEntity(101, {5, 0, 0}).setLayerId(night.getId());
  makeEntity(102).getOrCreateComponent<LinkComponent>()->setParentId(101);
  map.getEntityById(101)->getOrCreateComponent<LinkComponent>()->setParentId(100);
  map.startup();
  layers.deactivateLayer(night, 0);
  EXPECT_FALSE(night.isActive());
  EXPECT_EQ(nullptr, map.getEntityById(101));
  EXPECT_EQ(nullptr, map.createEntity(101)); // it is still theirs
  EXPECT_EQ((Ids{100, 102}), inCircle({0, 0, 0}, 10));
  EXPECT_EQ(qsf::UNINITIALIZED_ID, map.getEntityById(102)->getComponent<LinkComponent>()->getParentId());
  layers.activateLayer(night);
  ASSERT_NE(nullptr, map.getEntityById(101));
  EXPECT_EQ(glm::vec3(5, 0, 0), positionOf(*map.getEntityById(101)));
  EXPECT_EQ(101u, map.getEntityById(102)->getComponent<LinkComponent>()->getParentId());
  EXPECT_EQ(100u, map.getEntityById(101)->getComponent<LinkComponent>()->getParentId());
  EXPECT_TRUE(map.getEntityById(101)->getComponent<TransformComponent>()->isRunning());
}

TEST_F(MapTest, AnEntitysLayerIsKnownWhileTheLayerRests) {
  qsf::LayerManager& layers = host.getLayerManager();
  qsf::Layer& night = *layers.createLayer("Night");
  makeEntity(100);
  makeEntity(101).setLayerId(night.getId());
  layers.deactivateLayer(night);
  EXPECT_EQ(&night, layers.getLayerOfEntity(101));
  EXPECT_EQ(&layers.getBaseLayer(), layers.getLayerOfEntity(100));
  EXPECT_EQ(nullptr, layers.getLayerOfEntity(102));
}

TEST_F(MapTest, TheBaseLayerIsAlwaysThereAndActive) {
  qsf::LayerManager& layers = host.getLayerManager();
  makeEntity(100);
  layers.deactivateLayer(layers.getBaseLayer());
  EXPECT_TRUE(layers.getBaseLayer().isActive());
  EXPECT_NE(nullptr, map.getEntityById(100));
  EXPECT_EQ(0u, layers.getBaseLayer().getId());
  EXPECT_EQ(nullptr, layers.getLayerByName("Night"));
  EXPECT_EQ(nullptr, layers.getLayerById(7));
}

}
