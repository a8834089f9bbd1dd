#include "game_plugin/scenario/language/Vocabulary.h"

#include "em5/health/Injury.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace script;

namespace {

/// A text that differs from a known one in case, by a blank behind it or by a missing letter is unknown.
template <class Convert> void expectExactTexts(Convert convert, const std::string& text) {
  const auto unknown = convert("no such text");
  std::string small = text;
  for (char& letter : small)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  ASSERT_NE(convert(text), unknown) << text << " proves nothing";
  EXPECT_EQ(convert(small), unknown) << small;
  EXPECT_EQ(convert(text + " "), unknown) << text;
  EXPECT_EQ(convert(text.substr(0, text.size() - 1)), unknown) << text;
  EXPECT_EQ(convert(""), unknown);
}

TEST(Vocabulary, TextsAreExact) {
  expectExactTexts(ToBarType, "BAR_TYPE_DEATH");
  expectExactTexts(ToPlanMode, "REPLACE_WHOLE_PLAN");
  expectExactTexts(ToMovementMode, "MOVEMENT_MODE_MAGNET");
  expectExactTexts(ToStatusIcon, "STATUS_ICON_ARSONIST");
  expectExactTexts(ToMinimapIcon, "FIRE");
  expectExactTexts(ToInjury, "BURN_3_GRADE");
  expectExactTexts(ToGangsterLogic, "em5::GangsterArsonist");
}

TEST(Vocabulary, UnknownBarTypesReadLikeTheFirst) {
  EXPECT_EQ(ToBarType("BAR_TYPE_FIRE"), 0);
  EXPECT_EQ(ToBarType("bar_type_fire"), 0);
  EXPECT_EQ(ToBarType("BAR_TYPE_SMALL_HEALTH"), 2);
  EXPECT_EQ(ToBarType("_BAR_COUNT"), 6);
}

TEST(Vocabulary, UnknownPlanModesAppend) {
  EXPECT_EQ(ToPlanMode("APPEND_TO_BACK"), 0);
  EXPECT_EQ(ToPlanMode("append_to_back"), 0);
  EXPECT_EQ(ToPlanMode("INSERT_BEFORE_CURRENT"), 2);
  EXPECT_EQ(ToPlanMode("REPLACE_WHOLE_PLAN"), 3);
}

TEST(Vocabulary, MovementModesLeaveOutSeven) {
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_DEFAULT"), 0);
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_CIVIL_CAR_MOVES_TO_THE_SIDE"), 4);
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_RUN"), 6);
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_MAGNET"), 8);
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_FREE_RUN"), 11);
  EXPECT_EQ(ToMovementMode("MOVEMENT_MODE_FLY"), 0);
}

TEST(Vocabulary, StatusIconsLeaveOutThirteen) {
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_ARSONIST"), 0);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_DEAD"), 7);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_GAPER"), 12);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_GANGSTER_IN_VEHICLE"), 14);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_SEARCH_VARIOUS"), 22);
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_SICK_CONTAGIOUS"), 26);
  EXPECT_EQ(ToStatusIcon("_STATUS_ICON_COUNT"), 34) << "34 rows, one number left out";
  EXPECT_EQ(ToStatusIcon("STATUS_ICON_GHOST"), std::nullopt) << "the first icon has the number 0";
}

TEST(Vocabulary, MinimapIconsAreFiftyNine) {
  EXPECT_EQ(ToMinimapIcon("UNDEFINED"), 0);
  EXPECT_EQ(ToMinimapIcon("UNIT_TECH"), 10);
  EXPECT_EQ(ToMinimapIcon("HQ"), 23);
  EXPECT_EQ(ToMinimapIcon("STAKE"), 36);
  EXPECT_EQ(ToMinimapIcon("GANGSTER_IN_CAR"), 47);
  EXPECT_EQ(ToMinimapIcon("_MAX"), 58);
  EXPECT_EQ(ToMinimapIcon("Fire"), 0);
}

TEST(Vocabulary, InjuriesGiveTheHostsIds) {
  EXPECT_EQ(ToInjury("BURN_3_GRADE"), em5::injury::BURN_3_GRADE.getHash());
  EXPECT_EQ(ToInjury("INNER_BLEEDING"), em5::injury::INNER_BLEEDING.getHash());
  EXPECT_EQ(ToInjury("GUN_SHOT_WOUND_BODY_HARD"), em5::injury::GUN_SHOT_WOUND_BODY_HARD.getHash());
  EXPECT_EQ(ToInjury("PLAGUE_CONTAMINATION_TEST_NEGATIV"), em5::injury::PLAGUE_CONTAMINATION_TEST_NEGATIV.getHash());
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
  EXPECT_EQ(ToArithmeticOperator("-"), ArithmeticOperator::SUBTRACT);
  EXPECT_EQ(ToArithmeticOperator("*"), ArithmeticOperator::MULTIPLY);
  EXPECT_EQ(ToArithmeticOperator(":"), ArithmeticOperator::DIVIDE);
  for (const char* text : {"+", "/", "", "- "})
    EXPECT_EQ(ToArithmeticOperator(text), ArithmeticOperator::ADD) << text;
}

TEST(Vocabulary, TheWordsOfATableAreThoseThatItConverts) {
  EXPECT_EQ(planModeWords().size(), 4u);
  for (std::size_t mode = 0; mode < planModeWords().size(); ++mode)
    EXPECT_EQ(ToPlanMode(planModeWords()[mode]), static_cast<int>(mode));
  EXPECT_EQ(minimapIconWords().size(), 59u);
  for (std::size_t icon = 0; icon < minimapIconWords().size(); ++icon)
    EXPECT_EQ(ToMinimapIcon(minimapIconWords()[icon]), static_cast<int>(icon));
  EXPECT_EQ(statusIconWords().size(), 34u);
  for (const std::string_view word : statusIconWords())
    EXPECT_NE(ToStatusIcon(word), std::nullopt) << word;
  for (const std::string_view word : injuryWords())
    EXPECT_NE(ToInjury(word), std::nullopt) << word;
  for (const std::string_view word : gangsterLogicWords())
    EXPECT_EQ(ToGangsterLogic(word), word);
  EXPECT_EQ(std::ranges::count(arithmeticWords(), std::string_view(":")), 1);
  EXPECT_EQ(std::ranges::count(arithmeticWords(), std::string_view("+")), 1);
  EXPECT_EQ(std::ranges::count(arithmeticWords(), std::string_view("/")), 0);
}

}
