// Entities that the editor makes, takes back and makes again.
#include "qsf/editor/base/CreateEntityOperation.h"
#include "host/qsf/TestWorld.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/editor/base/BackupPrototypeOperationData.h"
#include "qsf/map/LayerManager.h"
#include "qsf/prototype/PrefabContent.h"
#include "qsf/prototype/PrototypeManager.h"

using qsf::editor::base::BackupPrototypeOperationData;
using qsf::editor::base::CreateEntityOperation;

namespace {

class CreateEntityOperationTest : public host_test::WorldTest {
protected:
  /// A prototype on no map that differs from a fresh one.
  CreateEntityOperationTest() {
    prototype.getOrCreateComponent<qsf::TransformComponent>()->setPosition({1, 2, 3});
    prototype.getOrCreateComponent<qsf::MetadataComponent>()->setName("station");
    prototype.getOrCreateComponent<qsf::MovableComponent>()->setActive(false);
  }

  qsf::Prototype prototype{105};
};

TEST_F(CreateEntityOperationTest, MakesTheEntityOfTheBackup) {
  map.startup();
  prototype.getComponent<qsf::MetadataComponent>()->setPropertyOverrideState(qsf::StringHash("Name"),
                                                                             qsf::InheritedObject::OVERRIDDEN);
  const BackupPrototypeOperationData backup(prototype);
  EXPECT_EQ(backup.getName(), "station");
  prototype.getComponent<qsf::MetadataComponent>()->setName("another"); // too late
  const std::uint32_t layer = host.getLayerManager().createLayer("Night")->getId();
  CreateEntityOperation creation(105, layer, backup);
  EXPECT_EQ(creation.getText(), "Create entity 105 \"station\" on layer \"Night\"");
  EXPECT_EQ(map.getEntityById(105), nullptr);
  ASSERT_TRUE(creation.redo());
  const qsf::Entity* entity = map.getEntityById(105);
  ASSERT_NE(entity, nullptr);
  EXPECT_EQ(positionOf(*entity), glm::vec3(1, 2, 3));
  const auto* metadata = entity->getComponent<qsf::MetadataComponent>();
  EXPECT_EQ(metadata->getName(), "station");
  EXPECT_EQ(metadata->getPropertyOverrideState(qsf::StringHash("Name")), qsf::InheritedObject::OVERRIDDEN);
  EXPECT_EQ(metadata->getPropertyOverrideState(qsf::StringHash("Description")), qsf::InheritedObject::INHERITED);
  EXPECT_FALSE(entity->getComponent<qsf::MovableComponent>()->isActive());
  EXPECT_TRUE(metadata->isRunning());
  EXPECT_EQ(entity->getLayerId(), layer);
}

TEST_F(CreateEntityOperationTest, UndoDestroysAndRedoMakesItAgain) {
  const BackupPrototypeOperationData backup(prototype);
  CreateEntityOperation creation(105, 0, backup);
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(creation.redo());
    EXPECT_EQ(positionOf(*map.getEntityById(105)), glm::vec3(1, 2, 3));
    map.getEntityById(105)->getComponent<qsf::TransformComponent>()->setPosition({7, 7, 7});
    creation.undo();
    EXPECT_EQ(map.getEntityById(105), nullptr);
    EXPECT_EQ(map.getNumberOfEntities(), 0u);
  }
}

TEST_F(CreateEntityOperationTest, AnIdThatIsTakenIsLeftToItsEntity) {
  makeEntity(105, {9, 9, 9});
  const BackupPrototypeOperationData backup(prototype);
  EXPECT_FALSE(CreateEntityOperation(105, 0, backup).redo());
  ASSERT_NE(map.getEntityById(105), nullptr);
  EXPECT_EQ(positionOf(*map.getEntityById(105)), glm::vec3(9, 9, 9));
}

TEST_F(CreateEntityOperationTest, AnEntityThatRestsWithItsLayerIsFound) {
  qsf::LayerManager& layers = host.getLayerManager();
  qsf::Layer& night = *layers.createLayer("Night");
  const BackupPrototypeOperationData backup(prototype);
  CreateEntityOperation creation(105, night.getId(), backup);
  ASSERT_TRUE(creation.redo());
  makeEntity(106).setLayerId(night.getId());
  layers.deactivateLayer(night);
  creation.undo();
  layers.activateLayer(night);
  EXPECT_EQ(map.getEntityById(105), nullptr);
  EXPECT_NE(map.getEntityById(106), nullptr);
  EXPECT_TRUE(creation.redo());
}

TEST_F(CreateEntityOperationTest, AnEntityThatIsGoneIsLeftAtThat) {
  const BackupPrototypeOperationData backup(prototype);
  CreateEntityOperation creation(105, 0, backup);
  ASSERT_TRUE(creation.redo());
  map.destroyObjectById(105);
  creation.undo();
  EXPECT_TRUE(creation.redo());
  EXPECT_NE(map.getEntityById(105), nullptr);
}

TEST_F(CreateEntityOperationTest, AnInactiveLayerTakesItAndItIsThere) {
  qsf::LayerManager& layers = host.getLayerManager();
  qsf::Layer& night = *layers.createLayer("Night");
  layers.deactivateLayer(night);
  const BackupPrototypeOperationData backup(prototype);
  CreateEntityOperation creation(105, night.getId(), backup);
  ASSERT_TRUE(creation.redo());
  EXPECT_NE(map.getEntityById(105), nullptr);
  EXPECT_EQ(layers.getLayerOfEntity(105), &night);
  layers.activateLayer(night);
  layers.deactivateLayer(night);
  EXPECT_EQ(map.getEntityById(105), nullptr);
}

class PrefabContentTest : public host_test::WorldTest {
protected:
  qsf::Prefab& readPrefab(const std::string& components) {
    project.write("prefab/test/it.json", "{\"components\": {" + components + "}}");
    mountProject();
    return *host.getMainPrototypeManager().getPrefabByLocalAssetId("test/prefab/test/it");
  }
  void take(const qsf::Prefab& prefab) {
    content.cloneFromPrototype(prefab, qsf::PrefabContent::buildIdMatchingMapWithGeneratedIds(prefab, map));
  }
  const qsf::MetadataComponent& metadata() const {
    return *content.getMainPrototype()->getComponent<qsf::MetadataComponent>();
  }

  qsf::PrefabContent content;
};

TEST_F(PrefabContentTest, IsEmptyAtFirst) {
  EXPECT_EQ(content.getMainPrototype(), nullptr);
  content.processForEntityInstancing(nullptr, {1, 2, 3});
  EXPECT_TRUE(content.getPrototypes().empty());
}

TEST_F(PrefabContentTest, CopiesHaveIdsThatAreFreeOnTheMap) {
  makeEntity(100);
  const qsf::Prefab& prefab = readPrefab(R"("qsf::MovableComponent": {"Speed": 7})");
  take(prefab);
  ASSERT_EQ(content.getPrototypes().size(), 1u);
  EXPECT_EQ(content.getMainPrototype()->getId(), 101u);
  EXPECT_EQ(content.getMainPrototype()->getComponent<qsf::MovableComponent>()->getPropertyAsString("Speed"), "7");
  EXPECT_EQ(map.getNumberOfEntities(), 1u);
  take(prefab);
  EXPECT_EQ(content.getMainPrototype()->getId(), 102u);
  content.cloneFromPrototype(prefab, {});
  EXPECT_EQ(content.getMainPrototype()->getId(), qsf::UNINITIALIZED_ID);
}

TEST_F(PrefabContentTest, InstancingGivesAPlaceThePrefabAndANameWhereThereIsNone) {
  const std::string name = "test/prefab/test/it";
  take(readPrefab(R"("qsf::TransformComponent": {"Position": "9 9 9"})"));
  content.processForEntityInstancing(&name, {1, 2, 3});
  EXPECT_EQ(content.getMainPrototype()->getComponent<qsf::TransformComponent>()->getPosition(), glm::vec3(1, 2, 3));
  EXPECT_EQ(metadata().getBasePrefab(), qsf::StringHash(name));
  EXPECT_EQ(metadata().getName(), "it");
}

TEST_F(PrefabContentTest, APrefabsOwnNameStays) {
  const std::string name = "it";
  take(readPrefab(R"("qsf::MetadataComponent": {"Name": "station"})"));
  content.processForEntityInstancing(&name, {0, 0, 0});
  EXPECT_EQ(metadata().getName(), "station");
}

TEST_F(PrefabContentTest, WithoutAPrefabNameThereIsNone) {
  take(readPrefab(""));
  content.processForEntityInstancing(nullptr, {0, 0, 0});
  EXPECT_EQ(metadata().getName(), "");
}

}
