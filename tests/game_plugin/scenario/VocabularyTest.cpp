#include "game_plugin/scenario/Vocabulary.h"

#include "em5/health/Injury.h"
#include "host/em5/SessionFixture.h"

#include <gtest/gtest.h>

#include <set>

using namespace script;

namespace {

TEST(Vocabulary, UnknownBarTypesReadLikeTheFirst) {
  EXPECT_EQ(ToBarType("BAR_TYPE_FIRE"), 0);
  EXPECT_EQ(ToBarType("bar_type_fire"), 0);
  EXPECT_EQ(ToBarType("BAR_TYPE_DEATH"), 4);
  EXPECT_EQ(ToBarType("_BAR_COUNT"), 6);
}

TEST(Vocabulary, PlanModes) {
  EXPECT_EQ(ToPlanMode("APPEND_TO_BACK"), 0);
  EXPECT_EQ(ToPlanMode("INSERT_AT_FRONT"), 1);
  EXPECT_EQ(ToPlanMode("INSERT_BEFORE_CURRENT"), 2);
  EXPECT_EQ(ToPlanMode("REPLACE_WHOLE_PLAN"), 3);
  EXPECT_EQ(ToPlanMode(""), 0);
}

TEST(Vocabulary, MovementModesLeaveOutSeven) {
  const char* const modes[] = {"DEFAULT",
                               "CARRY_PERSON",
                               "WALK_BACKWARDS",
                               "RUN_PANIC",
                               "CIVIL_CAR_MOVES_TO_THE_SIDE",
                               "PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS",
                               "RUN",
                               "MAGNET",
                               "REDIRECT",
                               "FREE_WALK",
                               "FREE_RUN"};
  int expected = 0;
  for (const std::string mode : modes) {
    EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_" + mode), expected) << mode;
    expected += expected == 6 ? 2 : 1;
  }
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_FLY"), 0);
}

TEST(Vocabulary, StatusIconsLeaveOutThirteen) {
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_ARSONIST"), 0);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_GAPER"), 12);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_GANGSTER_IN_VEHICLE"), 14);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_WARBLERTWEET"), 30);
  EXPECT_EQ(ToStatusIcon("_STATUS_ICON_COUNT"), 34);
  EXPECT_EQ(ToStatusIcon("status_icon_arsonist"), std::nullopt);
}

TEST(Vocabulary, MinimapIconsCountInTheirOrder) {
  EXPECT_EQ(ToMinimapIcon("UNDEFINED"), 0);
  EXPECT_EQ(ToMinimapIcon("HARBOR"), 17);
  EXPECT_EQ(ToMinimapIcon("PING_PIN"), 56);
  EXPECT_EQ(ToMinimapIcon("_MAX"), 58);
  EXPECT_EQ(ToMinimapIcon("Fire"), 0);
}

TEST(Vocabulary, InjuriesGiveTheHostsIds) {
  EXPECT_EQ(ToInjury("BURN_3_GRADE"), em5::injury::BURN_3_GRADE.getHash());
  EXPECT_EQ(ToInjury("DROWNING_NORMAL"), em5::injury::DROWNING_NORMAL.getHash());
  EXPECT_EQ(ToInjury("COMMON_COLD"), std::nullopt);
}

TEST(Vocabulary, TheLostArmNeedsItsSemicolon) {
  EXPECT_EQ(ToInjury("LOST_ARM;"), em5::injury::LOST_ARM.getHash());
  EXPECT_EQ(ToInjury("LOST_ARM"), std::nullopt);
}

TEST(Vocabulary, OnlyKnownGangsterLogicsPass) {
  EXPECT_EQ(ToGangsterLogic("em5::GangsterArsonist"), "em5::GangsterArsonist");
  EXPECT_EQ(ToGangsterLogic("em5::GangsterBlackoutFP"), "em5::GangsterBlackoutFP");
  EXPECT_EQ(ToGangsterLogic("em5::GangsterCivilArmedLogic"), "em5::GangsterCivilArmedLogic");
  EXPECT_EQ(ToGangsterLogic("em5::GangsterBaseLogic"), "");
}

TEST(Vocabulary, DivisionIsAColonAndASlashAdds) {
  EXPECT_EQ(ToArithmeticOperator("-"), ArithmeticOperator::Subtract);
  EXPECT_EQ(ToArithmeticOperator("*"), ArithmeticOperator::Multiply);
  EXPECT_EQ(ToArithmeticOperator(":"), ArithmeticOperator::Divide);
  for (const char* text : {"+", "/", "", "- "})
    EXPECT_EQ(ToArithmeticOperator(text), ArithmeticOperator::Add) << text;
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

}
