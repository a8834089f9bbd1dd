#include "game_plugin/scenario/world/UnitTypes.h"

#include "game_plugin/ModuleFixture.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/prototype/PrototypeManager.h"
#include "qsf/reflection/PropertyText.h"

#include <algorithm>
#include <map>
#include <set>

using namespace script;

namespace {

/// The prefabs of the base project, on a map that is played.
class UnitTypesOnAMapTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    addScript("main", "MAP_STARTUP_SIMULATION", "InitNewTrigger(\"t\",false);");
    start();
    for (const char* prefab : {"fire_engine", "helicopter", "civil_car", "firefighter", "civilian", "gangster", "tree",
                               "house", "barrel", "door", "marker"})
      units[prefab] = place(prefab, glm::vec3(10.0f * static_cast<float>(units.size()), 0, 0));
  }
  static std::uint64_t place(const std::string& prefab, const glm::vec3& position) {
    const qsf::Prefab* found = qsf::Qsf::instance()->getMainPrototypeManager().getPrefabByLocalAssetId(
        qsf::StringHash("em5/prefab/test/" + prefab));
    qsf::Entity* entity = qsf::getMainMap().createObjectFromPrefab(*found);
    entity->getComponent<qsf::TransformComponent>()->setPosition(position);
    return entity->getId();
  }
  void set(const std::string& unit, const char* component, const char* property, const char* value) {
    qsf::Component* found = qsf::getMainMap().getEntityById(units.at(unit))->getComponentById(component);
    qsf::setPropertyText(camp::UserObject(*found), property, value);
  }
  /// The prefabs that pass as that type, in alphabetical order.
  std::set<std::string> unitsOf(const std::string& type) const {
    std::set<std::string> names;
    for (const auto& [name, id] : units)
      if (CheckUnitType(id, type)) names.insert(name);
    return names;
  }
  ScenarioHandler& handler() const { return *entry(0).handler; }
  std::vector<std::uint64_t> list(const std::string& name) const { return handler().ResolveEntityList(name).vector(); }

  std::map<std::string, std::uint64_t> units;
  using Names = std::set<std::string>;
};

TEST_F(UnitTypesOnAMapTest, EachTypeHasItsUnits) {
  EXPECT_EQ(unitsOf("PlayerVehicles"), (Names{"fire_engine", "helicopter"}));
  EXPECT_EQ(unitsOf("PlayerPersons"), Names{"firefighter"});
  EXPECT_EQ(unitsOf("Civilian"), Names{"civilian"});
  EXPECT_EQ(unitsOf("Tree"), Names{"tree"});
  EXPECT_EQ(unitsOf("Building"), Names{"house"});
  EXPECT_EQ(unitsOf("Gangster"), Names{"gangster"});
  const Names burnable = unitsOf("ObjectBurnable");
  EXPECT_TRUE(burnable.contains("barrel") && burnable.contains("tree") && burnable.contains("house"));
  EXPECT_FALSE(burnable.contains("marker"));
}

TEST_F(UnitTypesOnAMapTest, FireAndWoundsCountAtThePresent) {
  EXPECT_TRUE(unitsOf("ObjectBurning").empty());
  EXPECT_TRUE(unitsOf("InjuredPersons").empty());
  set("barrel", "em5::FireComponent", "Burning", "1");
  set("civilian", "em5::HealthComponent", "Injured", "1");
  EXPECT_EQ(unitsOf("ObjectBurning"), Names{"barrel"});
  EXPECT_EQ(unitsOf("InjuredPersons"), Names{"civilian"});
}

TEST_F(UnitTypesOnAMapTest, AListTakesRandomUnitsOfATypeNoneTwice) {
  std::set<std::uint64_t> trees{units.at("tree")};
  for (int i = 0; i < 9; ++i)
    trees.insert(place("tree", glm::vec3(5.0f * static_cast<float>(i), 0, 100)));
  handler().AddToEntityListByTypeInArea("some", "Tree", 4, qsf::UNINITIALIZED_ID, 1);
  EXPECT_EQ(list("some").size(), 4u) << "without a centre the range plays no part";
  for (const std::uint64_t id : list("some"))
    EXPECT_TRUE(trees.contains(id)) << id;
  handler().AddToEntityListByTypeInArea("all", "Tree", 10, qsf::UNINITIALIZED_ID, 1);
  const std::vector<std::uint64_t> all = list("all");
  EXPECT_EQ(std::set<std::uint64_t>(all.begin(), all.end()), trees);
  EXPECT_FALSE(std::is_sorted(all.begin(), all.end())) << "drawn, not copied";
}

TEST_F(UnitTypesOnAMapTest, ACentreNarrowsTheSearch) {
  const std::uint64_t near = place("tree", glm::vec3(500, 0, 500));
  const std::uint64_t center = place("marker", glm::vec3(500, 0, 510));
  place("tree", glm::vec3(500, 0, 550));
  handler().AddToEntityListByTypeInArea("l", "Tree", 1, center, 20);
  EXPECT_EQ(list("l"), std::vector<std::uint64_t>{near});
  handler().AddToEntityListByTypeInArea("none", "Tree", 0, center, 20);
  EXPECT_TRUE(list("none").empty());
}

TEST_F(UnitTypesOnAMapTest, AnUnknownTypeIsToldForEachCandidate) {
  const long before = count(2, "CheckUnitType: Unittype \"Trees\" is not defined");
  handler().AddToEntityListByTypeInArea("l", "Trees", 0, qsf::UNINITIALIZED_ID, 1);
  EXPECT_GE(count(2, "CheckUnitType: Unittype \"Trees\" is not defined") - before, static_cast<long>(units.size()));
}

class UnitTypes : public SessionTest {
protected:
  void SetUp() override {
    SessionTest::SetUp();
    play();
  }
  std::uint64_t place(const char* componentId) {
    qsf::Entity* entity = qsf::getMainMap().createEntity();
    entity->getOrCreateComponentById("qsf::TransformComponent");
    entity->getOrCreateComponentById("qsf::MetadataComponent");
    if (componentId) entity->getOrCreateComponentById(componentId);
    return entity->getId();
  }
};

TEST_F(UnitTypes, ComponentsMakeTreesAndBuildings) {
  const std::uint64_t tree = place("em5::TreeComponent");
  const std::uint64_t house = place("em5::BuildingComponent");
  EXPECT_TRUE(CheckUnitType(tree, "Tree"));
  EXPECT_FALSE(CheckUnitType(tree, "Building"));
  EXPECT_TRUE(CheckUnitType(house, "Building"));
  EXPECT_FALSE(CheckUnitType(house, "Tree"));
}

TEST_F(UnitTypes, AMissingEntityIsOfNoKnownType) {
  for (const char* type : {"PlayerVehicles", "PlayerPersons", "Civilian", "Tree", "Building", "ObjectBurning",
                           "ObjectBurnable", "Gangster", "InjuredPersons"})
    EXPECT_FALSE(CheckUnitType(987654, type)) << type;
  EXPECT_FALSE(logged(2, "Unittype"));
}

TEST_F(UnitTypes, AnUnknownTypeIsLogged) {
  EXPECT_FALSE(CheckUnitType(place(nullptr), "tree"));
  EXPECT_TRUE(logged(2, "CheckUnitType: Unittype \"tree\" is not defined"));
}

TEST_F(UnitTypes, TheSearchTakesTheWholeMapWithoutItsCentre) {
  const std::uint64_t tree = place("em5::TreeComponent");
  place(nullptr);
  EXPECT_EQ(findEntitiesOfUnitType("Tree", qsf::UNINITIALIZED_ID, 0), std::vector<std::uint64_t>{tree});
  EXPECT_EQ(findEntitiesOfUnitType("Tree", tree, 1), std::vector<std::uint64_t>{tree});
  EXPECT_TRUE(findEntitiesOfUnitType("Building", qsf::UNINITIALIZED_ID, 0).empty());
}

TEST_F(UnitTypes, EachWordIsAType) {
  EXPECT_EQ(unitTypeWords().size(), 9u);
  for (const std::string_view word : unitTypeWords())
    CheckUnitType(987654, std::string(word));
  EXPECT_FALSE(logged(2, "Unittype"));
}

}
