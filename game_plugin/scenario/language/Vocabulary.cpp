#include "game_plugin/scenario/language/Vocabulary.h"

#include "game_plugin/scenario/language/WordTable.h"

#include "em5/health/Injury.h"

#include <algorithm>
#include <iterator>

namespace script {

namespace {

constexpr Word<int> BAR_TYPES[] = {
    {"BAR_TYPE_FIRE", 0}, {"BAR_TYPE_HEALTH", 1}, {"BAR_TYPE_SMALL_HEALTH", 2},
    {"BAR_TYPE_LIFE", 3}, {"BAR_TYPE_DEATH", 4},  {"BAR_TYPE_PROGRESS", 5},
    {"_BAR_COUNT", 6},
};

constexpr Word<int> PLAN_MODES[] = {
    {"APPEND_TO_BACK", 0},
    {"INSERT_AT_FRONT", 1},
    {"INSERT_BEFORE_CURRENT", 2},
    {"REPLACE_WHOLE_PLAN", 3},
};

// 7 is no mode that scripts may use.
constexpr Word<int> MOVEMENT_MODES[] = {
    {"MOVEMENT_MODE_DEFAULT", 0},
    {"MOVEMENT_MODE_CARRY_PERSON", 1},
    {"MOVEMENT_MODE_WALK_BACKWARDS", 2},
    {"MOVEMENT_MODE_RUN_PANIC", 3},
    {"MOVEMENT_MODE_CIVIL_CAR_MOVES_TO_THE_SIDE", 4},
    {"MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS", 5},
    {"MOVEMENT_MODE_RUN", 6},
    {"MOVEMENT_MODE_MAGNET", 8},
    {"MOVEMENT_MODE_REDIRECT", 9},
    {"MOVEMENT_MODE_FREE_WALK", 10},
    {"MOVEMENT_MODE_FREE_RUN", 11},
};

// 13 is no icon that scripts may use.
constexpr Word<int> STATUS_ICONS[] = {
    {"STATUS_ICON_ARSONIST", 0},
    {"STATUS_ICON_ATTACKED", 1},
    {"STATUS_ICON_BOMB", 2},
    {"STATUS_ICON_CHEMICAL_CONTAMINATION", 3},
    {"STATUS_ICON_CONDITION_RESCUE_AXE", 4},
    {"STATUS_ICON_CONDITION_RESCUE_DLK", 5},
    {"STATUS_ICON_CONDITION_RESCUE_HELI", 6},
    {"STATUS_ICON_DEAD", 7},
    {"STATUS_ICON_DEFECT", 8},
    {"STATUS_ICON_DEFECT_VEHICLE", 9},
    {"STATUS_ICON_EVENT_VARIOUS", 10},
    {"STATUS_ICON_FANATIC", 11},
    {"STATUS_ICON_GAPER", 12},
    {"STATUS_ICON_GANGSTER_IN_VEHICLE", 14},
    {"STATUS_ICON_GUNFIRE", 15},
    {"STATUS_ICON_HEAT_HAZARD", 16},
    {"STATUS_ICON_INFECTED", 17},
    {"STATUS_ICON_NPC", 18},
    {"STATUS_ICON_POSSIBLY_INFECTED", 19},
    {"STATUS_ICON_POSSIBLY_INFECTED_BUILDING", 20},
    {"STATUS_ICON_SEARCH", 21},
    {"STATUS_ICON_SEARCH_VARIOUS", 22},
    {"STATUS_ICON_RADIOACTIVE_CONTAMINATION", 23},
    {"STATUS_ICON_BIOLOGICAL_CONTAMINATION", 24},
    {"STATUS_ICON_SICK", 25},
    {"STATUS_ICON_SICK_CONTAGIOUS", 26},
    {"STATUS_ICON_SMOKE_POISONING", 27},
    {"STATUS_ICON_STAKE", 28},
    {"STATUS_ICON_TREE", 29},
    {"STATUS_ICON_WARBLERTWEET", 30},
    {"STATUS_ICON_WELL", 31},
    {"STATUS_ICON_WITCH", 32},
    {"STATUS_ICON_WRENCH", 33},
    {"_STATUS_ICON_COUNT", 34},
};

// An icon's number is its place.
constexpr std::string_view MINIMAP_ICONS[] = {
    "UNDEFINED",
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
    "_MAX",
};

constexpr Word<qsf::StringHash> INJURIES[] = {
    {"BURN_3_GRADE", em5::injury::BURN_3_GRADE},
    {"BURN_4_GRADE", em5::injury::BURN_4_GRADE},
    {"BURN_OF_BREATH", em5::injury::BURN_OF_BREATH},
    {"SMOKE_POISONING", em5::injury::SMOKE_POISONING},
    {"BROKEN_ARM", em5::injury::BROKEN_ARM},
    {"BROKEN_LEG", em5::injury::BROKEN_LEG},
    {"BROKEN_SKULL", em5::injury::BROKEN_SKULL},
    {"BRAIN_BLEEDING", em5::injury::BRAIN_BLEEDING},
    {"INNER_BLEEDING", em5::injury::INNER_BLEEDING},
    // Kept with its semicolon: scripts reach it from a quoted text.
    {"LOST_ARM;", em5::injury::LOST_ARM},
    {"LOST_LEG", em5::injury::LOST_LEG},
    {"WHIPLASH", em5::injury::WHIPLASH},
    {"GUN_SHOT_WOUND_LUNG", em5::injury::GUN_SHOT_WOUND_LUNG},
    {"GUN_SHOT_WOUND_BODY", em5::injury::GUN_SHOT_WOUND_BODY},
    {"GUN_SHOT_WOUND_BODY_HARD", em5::injury::GUN_SHOT_WOUND_BODY_HARD},
    {"STAB_WOUND_LUNG", em5::injury::STAB_WOUND_LUNG},
    {"STAB_WOUND_BODY", em5::injury::STAB_WOUND_BODY},
    {"STAB_WOUND_BODY_INNER_BLEEDING", em5::injury::STAB_WOUND_BODY_INNER_BLEEDING},
    {"BITE_WOUND", em5::injury::BITE_WOUND},
    {"BITE_WOUND_BLEEDING", em5::injury::BITE_WOUND_BLEEDING},
    {"HEAD_BODY_LACERATION", em5::injury::HEAD_BODY_LACERATION},
    {"ELECTRIC_SHOCK", em5::injury::ELECTRIC_SHOCK},
    {"SHOCK", em5::injury::SHOCK},
    {"WEAKNESS", em5::injury::WEAKNESS},
    {"WATER_FILLED_LUNG", em5::injury::WATER_FILLED_LUNG},
    {"HEARTATTACK", em5::injury::HEARTATTACK},
    {"STROKE", em5::injury::STROKE},
    {"CIRCULATORYCOLLAPSE", em5::injury::CIRCULATORYCOLLAPSE},
    {"FOOD_POISONING", em5::injury::FOOD_POISONING},
    {"ALCOHOL_POISONING", em5::injury::ALCOHOL_POISONING},
    {"LOW_BLOOD_PRESSURE", em5::injury::LOW_BLOOD_PRESSURE},
    {"ANGINA_PECTORIS", em5::injury::ANGINA_PECTORIS},
    {"SHORTAGE_OF_BREATH", em5::injury::SHORTAGE_OF_BREATH},
    {"COLLAPSED_LUNG", em5::injury::COLLAPSED_LUNG},
    {"HYPOTHERMIA", em5::injury::HYPOTHERMIA},
    {"AVIAN_INFLUENZA", em5::injury::AVIAN_INFLUENZA},
    {"AVIAN_INFLUENZA_INJURED", em5::injury::AVIAN_INFLUENZA_INJURED},
    {"SWINE_INFLUENZA", em5::injury::SWINE_INFLUENZA},
    {"SWINE_INFLUENZA_INJURED", em5::injury::SWINE_INFLUENZA_INJURED},
    {"HARD_ASTHMA", em5::injury::HARD_ASTHMA},
    {"HARD_ASTHMA_INJURED", em5::injury::HARD_ASTHMA_INJURED},
    {"HYDROPHOBIA", em5::injury::HYDROPHOBIA},
    {"HYDROPHOBIA_INJURED", em5::injury::HYDROPHOBIA_INJURED},
    {"CHEMICAL_CONTAMINATION", em5::injury::CHEMICAL_CONTAMINATION},
    {"CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH", em5::injury::CHEMICAL_CONTAMINATION_SHORTAGE_OF_BREATH},
    {"CHEMICAL_CONTAMINATION_BREATH_BURN", em5::injury::CHEMICAL_CONTAMINATION_BREATH_BURN},
    {"RADIOACTIVE_CONTAMINATION", em5::injury::RADIOACTIVE_CONTAMINATION},
    {"RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING", em5::injury::RADIOACTIVE_CONTAMINATION_ORGAN_BLEEDING},
    {"RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE", em5::injury::RADIOACTIVE_CONTAMINATION_ORGAN_FAILURE},
    {"PLAGUE_CONTAMINATION", em5::injury::PLAGUE_CONTAMINATION},
    {"PLAGUE_CONTAMINATION_TEST_POSITIV", em5::injury::PLAGUE_CONTAMINATION_TEST_POSITIV},
    {"PLAGUE_CONTAMINATION_TEST_NEGATIV", em5::injury::PLAGUE_CONTAMINATION_TEST_NEGATIV},
    {"DROWNING_NORMAL", em5::injury::DROWNING_NORMAL},
};
static_assert(std::size(INJURIES) == 53, "no injury that scripts know may get lost");

constexpr std::string_view GANGSTER_LOGICS[] = {"em5::GangsterArsonist", "em5::GangsterBlackoutFP",
                                                "em5::GangsterCivilArmedLogic", "em5::GangsterAttackEveryoneLogic"};

constexpr Word<ArithmeticOperator> ARITHMETIC_OPERATORS[] = {
    {"+", ArithmeticOperator::ADD},
    {"-", ArithmeticOperator::SUBTRACT},
    {"*", ArithmeticOperator::MULTIPLY},
    {":", ArithmeticOperator::DIVIDE},
};

}

int ToBarType(std::string_view text) { return lookUp(BAR_TYPES, text).value_or(0); }
int ToPlanMode(std::string_view text) { return lookUp(PLAN_MODES, text).value_or(0); }
int ToMovementMode(std::string_view text) { return lookUp(MOVEMENT_MODES, text).value_or(0); }
std::optional<int> ToStatusIcon(std::string_view text) { return lookUp(STATUS_ICONS, text); }

int ToMinimapIcon(std::string_view text) {
  const auto* found = std::find(std::begin(MINIMAP_ICONS), std::end(MINIMAP_ICONS), text);
  return found == std::end(MINIMAP_ICONS) ? 0 : static_cast<int>(found - std::begin(MINIMAP_ICONS));
}

std::optional<std::uint32_t> ToInjury(std::string_view text) {
  const std::optional<qsf::StringHash> injury = lookUp(INJURIES, text);
  return injury ? std::optional<std::uint32_t>(injury->getHash()) : std::nullopt;
}

std::string ToGangsterLogic(std::string_view text) {
  const auto* found = std::find(std::begin(GANGSTER_LOGICS), std::end(GANGSTER_LOGICS), text);
  return found == std::end(GANGSTER_LOGICS) ? std::string() : std::string(text);
}

ArithmeticOperator ToArithmeticOperator(std::string_view text) {
  return lookUp(ARITHMETIC_OPERATORS, text).value_or(ArithmeticOperator::ADD);
}

std::span<const std::string_view> barTypeWords() { return wordsOf<BAR_TYPES>(); }
std::span<const std::string_view> planModeWords() { return wordsOf<PLAN_MODES>(); }
std::span<const std::string_view> movementModeWords() { return wordsOf<MOVEMENT_MODES>(); }
std::span<const std::string_view> statusIconWords() { return wordsOf<STATUS_ICONS>(); }
std::span<const std::string_view> minimapIconWords() { return MINIMAP_ICONS; }
std::span<const std::string_view> injuryWords() { return wordsOf<INJURIES>(); }
std::span<const std::string_view> gangsterLogicWords() { return GANGSTER_LOGICS; }
std::span<const std::string_view> arithmeticWords() { return wordsOf<ARITHMETIC_OPERATORS>(); }

}
