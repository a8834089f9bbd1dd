#include "game_plugin/scenario/language/Vocabulary.h"

#include "em5/health/Injury.h"
#include "host/em5/SessionFixture.h"

#include <gtest/gtest.h>

#include <set>

using namespace script;

namespace {

TEST(Vocabulary, UnknownBarTypesReadLikeTheFirst) {
  EXPECT_EQ(ToBarType("BAR_TYPE_FIRE"), 0);
  EXPECT_EQ(ToBarType("bar_type_fire"), 0);
  EXPECT_EQ(ToBarType("BAR_TYPE_HEALTH"), 1);
  EXPECT_EQ(ToBarType("BAR_TYPE_SMALL_HEALTH"), 2);
  EXPECT_EQ(ToBarType("BAR_TYPE_LIFE"), 3);
  EXPECT_EQ(ToBarType("BAR_TYPE_DEATH"), 4);
  EXPECT_EQ(ToBarType("BAR_TYPE_PROGRESS"), 5);
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
  const char* const icons[] = {"STATUS_ICON_ARSONIST",
                               "STATUS_ICON_ATTACKED",
                               "STATUS_ICON_BOMB",
                               "STATUS_ICON_CHEMICAL_CONTAMINATION",
                               "STATUS_ICON_CONDITION_RESCUE_AXE",
                               "STATUS_ICON_CONDITION_RESCUE_DLK",
                               "STATUS_ICON_CONDITION_RESCUE_HELI",
                               "STATUS_ICON_DEAD",
                               "STATUS_ICON_DEFECT",
                               "STATUS_ICON_DEFECT_VEHICLE",
                               "STATUS_ICON_EVENT_VARIOUS",
                               "STATUS_ICON_FANATIC",
                               "STATUS_ICON_GAPER",
                               "STATUS_ICON_GANGSTER_IN_VEHICLE",
                               "STATUS_ICON_GUNFIRE",
                               "STATUS_ICON_HEAT_HAZARD",
                               "STATUS_ICON_INFECTED",
                               "STATUS_ICON_NPC",
                               "STATUS_ICON_POSSIBLY_INFECTED",
                               "STATUS_ICON_POSSIBLY_INFECTED_BUILDING",
                               "STATUS_ICON_SEARCH",
                               "STATUS_ICON_SEARCH_VARIOUS",
                               "STATUS_ICON_RADIOACTIVE_CONTAMINATION",
                               "STATUS_ICON_BIOLOGICAL_CONTAMINATION",
                               "STATUS_ICON_SICK",
                               "STATUS_ICON_SICK_CONTAGIOUS",
                               "STATUS_ICON_SMOKE_POISONING",
                               "STATUS_ICON_STAKE",
                               "STATUS_ICON_TREE",
                               "STATUS_ICON_WARBLERTWEET",
                               "STATUS_ICON_WELL",
                               "STATUS_ICON_WITCH",
                               "STATUS_ICON_WRENCH",
                               "_STATUS_ICON_COUNT"};
  int expected = 0;
  for (const char* icon : icons) {
    EXPECT_EQ(ToStatusIcon(icon), expected) << icon;
    expected += expected == 12 ? 2 : 1;
  }
  EXPECT_EQ(expected, 35);
  EXPECT_EQ(ToStatusIcon("status_icon_arsonist"), std::nullopt);
}

TEST(Vocabulary, MinimapIconsCountInTheirOrder) {
  const char* const icons[] = {"UNDEFINED",
                               "FIRE",
                               "BUILDING_TRAPPED",
                               "BUILDING_ON_FIRE",
                               "CONTAMINATED_BIOLOGICAL",
                               "VICTIM_INJURED_RED",
                               "VICTIM_TRANSPORT",
                               "UNIT_AMBULANCE",
                               "UNIT_FIREFIGHTER",
                               "UNIT_POLICE",
                               "UNIT_TECH",
                               "UNIT_AMBULANCE_DOG",
                               "UNIT_VEHICLE_AMBULANCE",
                               "UNIT_VEHICLE_FIREFIGHTER",
                               "UNIT_VEHICLE_POLICE",
                               "UNIT_VEHICLE_TECH",
                               "UNIT_VEHICLE_FIREPLANE",
                               "HARBOR",
                               "BRIDGE",
                               "DEFECT_VEHICLE",
                               "BROKEN_TREE",
                               "DANGEROUS_ANIMAL",
                               "BOMB_OLD",
                               "HQ",
                               "GANGSTER",
                               "SEARCH",
                               "PEST_BUILDING",
                               "BARRIER",
                               "QUESTION_MARK",
                               "EVENT",
                               "UNIT_MEDIEVAL",
                               "UNIT_VEHICLE_OTHER_PLAYER",
                               "UNIT_OTHER_PLAYER",
                               "POSSIBLY_PEST_BUILDING",
                               "WELL",
                               "GARDIST",
                               "STAKE",
                               "WARBLERTWEET",
                               "ARSONIST",
                               "FANATIC",
                               "WITCH",
                               "VICTIM_INJURED",
                               "VICTIM_RESCUE_HELI",
                               "VICTIM_RESCUE_DLK",
                               "CONTAMINATION_CHEMICAL",
                               "CONTAMINATION_NUCLEAR",
                               "RESCUE_AXE",
                               "GANGSTER_IN_CAR",
                               "UNIT_POLICE_DOG",
                               "SEARCH_VARIOUS",
                               "PATH_DESTINATION",
                               "DEAD",
                               "BOMB",
                               "DEFECT",
                               "GAPER",
                               "PING",
                               "PING_PIN",
                               "BLINK",
                               "_MAX"};
  int expected = 0;
  for (const char* icon : icons)
    EXPECT_EQ(ToMinimapIcon(icon), expected++) << icon;
  EXPECT_EQ(expected, 59);
  EXPECT_EQ(ToMinimapIcon("Fire"), 0);
}

TEST(Vocabulary, InjuriesGiveTheHostsIds) {
  const char* const injuries[] = {"BURN_3_GRADE",
                                  "BURN_4_GRADE",
                                  "BURN_OF_BREATH",
                                  "SMOKE_POISONING",
                                  "BROKEN_ARM",
                                  "BROKEN_LEG",
                                  "BROKEN_SKULL",
                                  "BRAIN_BLEEDING",
                                  "INNER_BLEEDING",
                                  "LOST_LEG",
                                  "WHIPLASH",
                                  "GUN_SHOT_WOUND_LUNG",
                                  "GUN_SHOT_WOUND_BODY",
                                  "GUN_SHOT_WOUND_BODY_HARD",
                                  "STAB_WOUND_LUNG",
                                  "STAB_WOUND_BODY",
                                  "STAB_WOUND_BODY_INNER_BLEEDING",
                                  "BITE_WOUND",
                                  "BITE_WOUND_BLEEDING",
                                  "HEAD_BODY_LACERATION",
                                  "ELECTRIC_SHOCK",
                                  "SHOCK",
                                  "WEAKNESS",
                                  "WATER_FILLED_LUNG",
                                  "HEARTATTACK",
                                  "STROKE",
                                  "CIRCULATORYCOLLAPSE",
                                  "FOOD_POISONING",
                                  "ALCOHOL_POISONING",
                                  "LOW_BLOOD_PRESSURE",
                                  "ANGINA_PECTORIS",
                                  "SHORTAGE_OF_BREATH",
                                  "COLLAPSED_LUNG",
                                  "HYPOTHERMIA",
                                  "AVIAN_INFLUENZA",
                                  "AVIAN_INFLUENZA_INJURED",
                                  "SWINE_INFLUENZA",
                                  "SWINE_INFLUENZA_INJURED",
                                  "HARD_ASTHMA",
                                  "HARD_ASTHMA_INJURED",
                                  "HYDROPHOBIA",
                                  "HYDROPHOBIA_INJURED",
                                  "CHEMICAL_CONTAMINATION",
                                  "CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH",
                                  "CHEMICAL_CONTAMINATION_BREATH_BURN",
                                  "RADIOACTIVE_CONTAMINATION",
                                  "RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING",
                                  "RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE",
                                  "PLAGUE_CONTAMINATION",
                                  "PLAGUE_CONTAMINATION_TEST_POSITIV",
                                  "PLAGUE_CONTAMINATION_TEST_NEGATIV",
                                  "DROWNING_NORMAL"};
  std::set<std::uint32_t> ids;
  for (const char* injury : injuries) {
    ASSERT_TRUE(ToInjury(injury).has_value()) << injury;
    EXPECT_EQ(*ToInjury(injury), qsf::StringHash(injury).getHash()) << injury;
    ids.insert(*ToInjury(injury));
  }
  EXPECT_EQ(ids.size(), 52u);
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
  EXPECT_EQ(ToGangsterLogic("em5::GangsterAttackEveryoneLogic"), "em5::GangsterAttackEveryoneLogic");
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
