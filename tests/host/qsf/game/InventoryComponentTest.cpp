#include "qsf/game/InventoryComponent.h"
#include "host/qsf/TestWorld.h"

namespace {

class InventoryComponentTest : public host_test::WorldTest {
protected:
  InventoryComponentTest() { mountBase(); }
  qsf::game::InventoryComponent& inventory = *makeEntity(100).getOrCreateComponent<qsf::game::InventoryComponent>();
};

TEST_F(InventoryComponentTest, ItemsAreReadAndSetByReflection) {
  inventory.setPropertyByString("Items", "em5/prefab/test/axe em5/prefab/test/marker");
  EXPECT_EQ((std::vector<std::string>{"em5/prefab/test/axe", "em5/prefab/test/marker"}), inventory.getItems());
  EXPECT_EQ("em5/prefab/test/axe em5/prefab/test/marker", inventory.getPropertyAsString("Items"));
  EXPECT_TRUE(inventory.hasItem("em5/prefab/test/marker"));
  EXPECT_FALSE(inventory.hasItem("marker"));
}

TEST_F(InventoryComponentTest, AnItemIsFoundByTheNameOfItsEquipment) {
  inventory.setItems({"em5/prefab/test/marker", "em5/prefab/test/none", "em5/prefab/test/axe"});
  EXPECT_EQ("em5/prefab/test/axe", inventory.findItemByEquipmentName("axe"));
  EXPECT_EQ("", inventory.findItemByEquipmentName("hose"));
}

TEST_F(InventoryComponentTest, AFaultyPrefabIsToldAndPassedOver) {
  project.write("prefab/test/broken.json", "{");
  mountProject();
  inventory.setItems({"test/prefab/test/broken", "em5/prefab/test/axe"});
  EXPECT_EQ("em5/prefab/test/axe", inventory.findItemByEquipmentName("axe"));
  ASSERT_EQ(1u, log.size());
  EXPECT_NE(std::string::npos, log[0].find("broken.json"));
}

}
