// What entries and commands ask of an open house, and how editors show it.
#include "game_plugin/component/OpenHouseComponent.h"

#include "game_plugin/ModuleFixture.h"

using script::OpenHouseComponent;

namespace {

class OpenHouseComponentTest : public ModuleTest {
protected:
  OpenHouseComponentTest() { start(); }
};

TEST_F(OpenHouseComponentTest, AStepTellsTheFloorThatItLeadsTo) {
  auto& house = *qsf::getMainMap().createEntity(100)->getOrCreateComponent<OpenHouseComponent>();
  house.setPropertyByString("Number of Layers", "2");
  EXPECT_EQ(house.stepToNextFloor(), 1);
  EXPECT_EQ(house.stepToNextFloor(), 2);
  EXPECT_EQ(house.stepToNextFloor(), 0);
  EXPECT_EQ(house.stepToNextFloor(), 1);
}

TEST_F(OpenHouseComponentTest, AHouseIsFoundByWhatItLists) {
  qsf::Entity& entity = *qsf::getMainMap().createEntity(100);
  auto& house = *entity.getOrCreateComponent<OpenHouseComponent>();
  house.setPropertyByString("Layer 3", "7 8");
  house.setPropertyByString("OH Door", "9");
  house.setPropertyByString("DefaultLayer", "10");
  for (const std::uint64_t id : {100, 7, 8, 9, 10})
    EXPECT_EQ(OpenHouseComponent::findHouse(qsf::getMainMap(), id), &entity) << id;
  EXPECT_EQ(OpenHouseComponent::findHouse(qsf::getMainMap(), 11), nullptr);
}

TEST_F(OpenHouseComponentTest, IsDescribedForTheEditor) {
  const camp::Class& house = camp::classByType<OpenHouseComponent>();
  EXPECT_EQ(house.tag("Name").to<std::string>(), "OpenHouse (Tidemarks)");
  EXPECT_EQ(house.property("Next Floor").tag("Description").to<std::string>(), "Current Floor");
  EXPECT_EQ(house.property("OH Door").tag("Description").to<std::string>(), "Entity that blocks the door");
  for (const char* slot : {"Layer 1", "Layer 2", "Layer 3", "Layer 4", "OH Door", "DefaultLayer"})
    EXPECT_TRUE(house.property(slot).hasTag("Slot")) << slot;
}

}
