#include "apps/tidemark/test/steps/Steps.h"
#include "apps/tidemark/test/steps/Reflection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tidemark::test {

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

TEST(Numbers, AreComparedAsTheFloatsThatScriptsHold) {
  EXPECT_TRUE(numbersMatch(0.1, 0.1f, std::nullopt));
  EXPECT_FALSE(numbersMatch(0.1, 0.11f, std::nullopt));
  EXPECT_TRUE(numbersMatch(1, 1.25, 0.25));
  EXPECT_FALSE(numbersMatch(1, 1.3, 0.25));
}

TEST(Numbers, InfinitiesAndNotANumberEqualThemselves) {
  EXPECT_TRUE(numbersMatch(INF, INF, std::nullopt));
  EXPECT_FALSE(numbersMatch(INF, -INF, 1));
  EXPECT_TRUE(numbersMatch(NOT_A_NUMBER, NOT_A_NUMBER, std::nullopt));
  EXPECT_FALSE(numbersMatch(NOT_A_NUMBER, 0, 1));
}

TEST(Times, AreAtLeastOneWithoutACount) {
  EXPECT_FALSE(Times{}.holds(0));
  EXPECT_TRUE(Times{}.holds(5));
  EXPECT_TRUE(Times{0}.holds(0));
  EXPECT_FALSE(Times{2}.holds(3));
}

TEST(Times, AreReadFromTheEnd) {
  WordCursor never(splitWords("never")), twice(splitWords("2 times")), none(splitWords("2"));
  EXPECT_EQ(takeTimes(never).exactly, 0u);
  EXPECT_EQ(takeTimes(twice).exactly, 2u);
  EXPECT_EQ(takeTimes(none).exactly, std::nullopt);
}

TEST(EntityReferences, AreIdsOrPlacesInAList) {
  EXPECT_EQ(parseEntityReference("18446744073709551615")->id, 18446744073709551615u);
  const auto place = parseEntityReference("§my list[2]");
  ASSERT_TRUE(place);
  EXPECT_EQ(place->list, "§my list");
  EXPECT_EQ(place->index, 2u);
  for (const char* text : {"x", "[1]", "x[]", "x[-1]", "x[1", "-1", ""})
    EXPECT_FALSE(parseEntityReference(text)) << text;
}

TEST(Values, MatchAsTextsOrNumberByNumber) {
  EXPECT_TRUE(valueMatches("DOOR_OPEN", "DOOR_OPEN", std::nullopt));
  EXPECT_TRUE(valueMatches("1 2 3", "1.0 2 3.0", std::nullopt));
  EXPECT_TRUE(valueMatches("1 2 3", "1.1 2 2.9", 0.2));
  EXPECT_FALSE(valueMatches("1 2 3", "1 2", 10));
  EXPECT_FALSE(valueMatches("1 2 3", "1 2 4", std::nullopt));
  EXPECT_FALSE(valueMatches("", "0", std::nullopt));
  EXPECT_TRUE(valueMatches("", "", std::nullopt));
}

TEST(Values, IdsAreComparedDigitByDigit) {
  EXPECT_FALSE(valueMatches("16777217", "16777216", std::nullopt));
  EXPECT_TRUE(valueMatches("16777217", "16777217", std::nullopt));
  EXPECT_FALSE(valueMatches("18446744073709551615", "18446744073709551614", std::nullopt));
}

TEST(PropertyNames, AreSplitAtTheFirstDot) {
  const PropertyName name = parsePropertyName("script::SmokeComponent.Linked Particles");
  EXPECT_EQ(name.component, "script::SmokeComponent");
  EXPECT_EQ(name.property, "Linked Particles");
  EXPECT_THROW(parsePropertyName("x"), DirectiveError);
  EXPECT_THROW(parsePropertyName(".x"), DirectiveError);
  EXPECT_THROW(parsePropertyName("x."), DirectiveError);
}

}

}
