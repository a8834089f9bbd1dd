#include "host/qsf/TestWorld.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/map/LayerManager.h"
#include "qsf/math/EulerAngles.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "qsf/prototype/PrototypeManager.h"

namespace {

class MapFileTest : public host_test::WorldTest {
protected:
  void expectFault(const std::string& json, const std::string& part) {
    const std::string fault = loadFault(json);
    EXPECT_NE(std::string::npos, fault.find(part)) << "\"" << fault << "\" lacks " << part;
    EXPECT_NE(std::string::npos, fault.find("map.json")) << fault;
    EXPECT_EQ(0u, map.getNumberOfEntities());
    EXPECT_EQ(qsf::UNINITIALIZED_STRING_HASH, map.getGlobalAssetId());
  }
  void expectEntityFault(const std::string& entities, const std::string& part) {
    expectFault(R"({"entities": [)" + entities + "]}", part);
  }
};

TEST_F(MapFileTest, AnEmptyMapHasCoreAndCamera) {
  ASSERT_EQ("", loadFault("{}"));
  EXPECT_EQ(2u, map.getNumberOfEntities());
  EXPECT_NE(nullptr, map.getCoreEntity()->getComponent<qsf::game::TimeOfDayComponent>());
  EXPECT_NE(nullptr, map.getCoreEntity()->getComponent<qsf::PhysicsWorldComponent>());
  EXPECT_NE(nullptr, map.getEntityById(1)->getComponent<qsf::CameraComponent>());
  EXPECT_EQ("test/map/test/map", map.getLocalAssetName());
  EXPECT_EQ(qsf::StringHash::compute("test/map/test/map"), map.getGlobalAssetId());
}

TEST_F(MapFileTest, EntitiesComeWithPlacementAndComponents) {
  ASSERT_EQ("", loadFault(R"({"size": [100, 60], "ground": {"type": "step", "at": 5, "low": 1, "high": 2},
    "entities": [{"id": 0, "components": {"qsf::game::TimeOfDayComponent": {"Hour": 8}}},
                 {"id": 100, "name": "A", "description": "B", "position": [1, 2.5, -3], "rotation": [90, 0, 0],
                  "scale": [2, 2, 2], "hidden": true,
                  "components": {"qsf::LinkComponent": {"ParentId": 101}, "qsf::MovableComponent": {"Speed": "4"}}},
                 {"id": 101}]})"));
  const qsf::Entity& entity = *map.getEntityById(100);
  EXPECT_EQ(glm::vec3(1, 2.5, -3), positionOf(entity));
  EXPECT_EQ(qsf::EulerAngles::eulerToQuaternion(glm::vec3(90, 0, 0) * 0.017453292f, 17),
            entity.getComponent<qsf::TransformComponent>()->getRotation());
  EXPECT_EQ("A", entity.getComponent<qsf::MetadataComponent>()->getName());
  EXPECT_EQ("B", entity.getComponent<qsf::MetadataComponent>()->getDescription());
  EXPECT_TRUE(entity.isHidden());
  EXPECT_EQ(101u, entity.getComponent<qsf::LinkComponent>()->getParentId());
  EXPECT_EQ("4", entity.getComponentById("qsf::MovableComponent")->getPropertyAsString("Speed"));
  EXPECT_EQ(8, map.getCoreEntity()->getComponent<qsf::game::TimeOfDayComponent>()->getHour());
  EXPECT_EQ(-50, map.getBounds().minimumX);
  EXPECT_EQ(30, map.getBounds().maximumZ);
  EXPECT_EQ(1, map.getGroundHeight(4.9f, 0));
  EXPECT_EQ(2, map.getGroundHeight(5, 0));
  EXPECT_EQ(102u, map.createEntity()->getId());
}

TEST_F(MapFileTest, FaultsOfTheFileNameItAndThePlace) {
  expectFault("{\n\"size\": [1,\n}", "line 3");
  expectFault("[]", "an object is expected");
  expectFault(R"({"sise": [1, 2]})", "did you mean \"size\"");
  expectFault(R"({"size": [0, 2]})", "/size");
  expectFault(R"({"size": [1]})", "/size");
  expectFault(R"({"size": [1e30, 1e300]})", "/size/1");
  expectFault(R"({"ground": {"type": "hilly"}})", "/ground/type");
  expectFault(R"({"ground": {"type": "flat"}})", "\"height\" is missing");
  expectFault(R"({"layers": [{"name": "A"}, {"name": "A"}]})", "/layers/1/name");
  expectFault(R"({"layers": [{"name": "Base"}]})", "/layers/0/name");
  expectFault(R"({"entities": {}})", "/entities");
}

TEST_F(MapFileTest, FaultsOfAnEntityNameThePlace) {
  expectEntityFault("5", "/entities/0");
  expectEntityFault("{}", "\"id\" is missing");
  expectEntityFault(R"({"id": -5})", "/entities/0/id");
  expectEntityFault(R"({"id": 1.5})", "/entities/0/id");
  expectEntityFault("{\"id\": " + std::string(1'000'000, '[') + std::string(1'000'000, ']') + "}", "not array");
  expectEntityFault(R"({"id": 18446744073709551615})", "/entities/0/id");
  expectEntityFault(R"({"id": 5}, {"id": 5})", "two entities with the id 5");
  expectEntityFault(R"({"id": 0}, {"id": 0})", "two entities with the id 0");
  expectEntityFault(R"({"id": 5, "positon": [1, 2, 3]})", "did you mean \"position\"");
  expectEntityFault(R"({"id": 5, "position": [1, 2]})", "/entities/0/position");
  expectEntityFault(R"({"id": 5, "position": [1, 2, "x"]})", "/entities/0/position/2");
  expectEntityFault(R"({"id": 5, "layer": "Nowhere"})", "/entities/0/layer");
  expectEntityFault(R"({"id": 5, "name": 5})", "/entities/0/name");
  expectEntityFault(R"({"id": 5, "components": []})", "/entities/0/components");
  expectEntityFault(R"({"id": 0, "prefab": "x"})", "/entities/0/prefab");
}

TEST_F(MapFileTest, UnknownNamesComeWithAHint) {
  mountBase();
  expectEntityFault(R"({"id": 5, "components": {"qsf::MovabelComponent": {}}})",
                    "did you mean \"qsf::MovableComponent\"");
  expectEntityFault(R"({"id": 5, "components": {"qsf::Transform": {}}})", "did you mean \"qsf::TransformComponent\"");
  expectEntityFault(R"({"id": 5, "components": {"qsf::LinkComponent": {"ParentID": 5}}})", "did you mean \"ParentId\"");
  expectEntityFault(R"({"id": 5, "prefab": "em5/prefab/test/tre"})", "did you mean \"em5/prefab/test/tree\"");
  EXPECT_THROW(map.load("em5/map/test/empt"), qsf::LoadError);
}

TEST_F(MapFileTest, MalformedValuesAndImpossibleParentsAreFaults) {
  expectEntityFault(R"({"id": 5, "components": {"qsf::MovableComponent": {"Speed": "fast"}}})",
                    "/entities/0/components/qsf::MovableComponent/Speed");
  expectEntityFault(R"({"id": 5, "components": {"qsf::MovableComponent": {"Speed": {}}}})", "Speed");
  expectEntityFault(R"({"id": 5, "components": {"qsf::LinkComponent": {"ParentId": 6}}})", "ParentId");
  expectEntityFault(R"({"id": 5, "components": {"qsf::LinkComponent": {"ParentId": 5}}})", "ParentId");
  expectEntityFault(R"({"id": 5, "components": {"qsf::LinkComponent": {"ParentId": 6}}},
                       {"id": 6, "components": {"qsf::LinkComponent": {"ParentId": 5}}})",
                    "/entities/1");
}

TEST_F(MapFileTest, AFaultyLoadLeavesAnEmptyMapThatCanBeLoadedAgain) {
  expectEntityFault(R"({"id": 5}, {"id": 6, "name": 1})", "/entities/1/name");
  EXPECT_EQ("", loadFault(R"({"entities": [{"id": 5}]})"));
  EXPECT_EQ(3u, map.getNumberOfEntities());
}

TEST_F(MapFileTest, AFaultyPrefabFileIsTheMapsFault) {
  project.write("prefab/test/broken.json", R"({"components": {"qsf::MovableComponent": {"Speed": "x"}}})");
  project.write("map/test/map.json", R"({"entities": [{"id": 5, "prefab": "test/prefab/test/broken"}]})");
  mountProject();
  try {
    map.load("test/map/test/map");
    FAIL();
  } catch (const qsf::LoadError& fault) {
    EXPECT_NE(std::string::npos, std::string(fault.what()).find("broken.json")) << fault.what();
  }
}

TEST_F(MapFileTest, InGameAFaultyPrefabIsLoggedAndMakesNothing) {
  project.write("prefab/test/broken.json", R"({"components": 5})");
  mountProject();
  EXPECT_EQ(nullptr, map.createObjectByLocalPrefabAssetId("test/prefab/test/broken"));
  ASSERT_EQ(1u, log.size());
  EXPECT_NE(std::string::npos, log[0].find("broken.json"));
  EXPECT_EQ(nullptr, map.createObjectByLocalPrefabAssetId("test/prefab/test/missing"));
  EXPECT_EQ(0u, map.getNumberOfEntities());
}

TEST_F(MapFileTest, InactiveLayersKeepTheirEntitiesOffTheMap) {
  ASSERT_EQ("", loadFault(R"({"layers": [{"name": "Night", "active": false}, {"name": "Day"}],
    "entities": [{"id": 100, "layer": "Night"}, {"id": 101, "layer": "Day"}]})"));
  EXPECT_EQ(nullptr, map.getEntityById(100));
  EXPECT_NE(nullptr, map.getEntityById(101));
  host.getLayerManager().activateLayer(*host.getLayerManager().getLayerByName("Night"));
  EXPECT_NE(nullptr, map.getEntityById(100));
}

TEST_F(MapFileTest, EveryMapAndPrefabOfTheBaseProjectLoads) {
  mountBase();
  for (const std::string& name : host.getProjectManager().getAssetNamesByType("map"))
    EXPECT_NO_THROW(map.load(name)) << name;
  for (const std::string& name : host_test::findPrefabsOfTheHost(host.getProjectManager())) {
    EXPECT_NO_THROW(host.getMainPrototypeManager().getPrefabByLocalAssetId(name)) << name;
    qsf::Entity* entity = map.createObjectByLocalPrefabAssetId(name);
    ASSERT_NE(nullptr, entity) << name;
    EXPECT_EQ(name,
              qsf::AssetProxy(entity->getComponent<qsf::MetadataComponent>()->getBasePrefab()).getLocalAssetName());
  }
  map.load("em5/map/test/step");
  EXPECT_EQ(0, map.getGroundHeight(-1, 0));
  EXPECT_EQ(10, map.getGroundHeight(0, 0));
}

TEST_F(MapFileTest, CopiesOfAPrefabHaveItsValuesAndStandStill) {
  project.write("prefab/test/car.json", R"({"components": {"qsf::MovableComponent": {"Speed": 3},
    "qsf::TransformComponent": {"Position": [5, 0, 5], "Rotation": "0 0 1 0"}, "qsf::LinkComponent": {}}})");
  mountProject();
  map.startup();
  const qsf::Entity& entity = *map.createObjectByLocalPrefabAssetId("test/prefab/test/car");
  EXPECT_EQ("3", entity.getComponentById("qsf::MovableComponent")->getPropertyAsString("Speed"));
  EXPECT_TRUE(entity.getComponentById("qsf::MovableComponent")->isRunning());
  runSeconds(1);
  EXPECT_EQ(glm::vec3(5, 0, 5), positionOf(entity));
}

}
