#include "apps/tidemark/test/files/LinePattern.h"

#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/Words.h"

#include <gtest/gtest.h>

namespace tidemark::test {

namespace {

TEST(LinePattern, TheWholeLineIsCompared) {
  const LinePattern pattern(R"(\d{2}:\d\d [a-z]+(?: end)?)");
  EXPECT_TRUE(pattern.matches("12:30 text"));
  EXPECT_TRUE(pattern.matches("12:30 text end"));
  EXPECT_FALSE(pattern.matches(" 12:30 text"));
  EXPECT_FALSE(pattern.matches("12:30 text end."));
}

// Patterns that a search by trial and error never finishes, or finishes on the stack's end.
TEST(LinePattern, CostlyPatternsComeToAnEnd) {
  const std::string line(2'000, 'a');
  EXPECT_FALSE(LinePattern("(a+)+b").matches(line));
  EXPECT_FALSE(LinePattern("(a|a|aa)*b").matches(line));
  EXPECT_TRUE(LinePattern("(a|b)*").matches(std::string(20'000, 'a')));
  EXPECT_FALSE(LinePattern("(.*)(.*)(.*)(.*)(.*)(.*)(.*)(.*)x").matches(line));
}

TEST(LinePattern, WhatIsTooLargeIsRefused) {
  EXPECT_THROW(LinePattern("(((a{1000}){1000}){1000})"), DirectiveError);
  EXPECT_THROW(LinePattern(std::string(501, 'a')), DirectiveError);
  EXPECT_THROW((void)LinePattern("a*").matches(std::string(20'001, 'a')), NotThere);
  EXPECT_NO_THROW(LinePattern(std::string(250, '(') + std::string(250, ')')));
}

TEST(LinePattern, MalformedPatternsAreRefused) {
  for (const char* pattern : {"(", "[", "a{2", "*", "\\", "[b-a]"})
    EXPECT_THROW(LinePattern{pattern}, DirectiveError) << pattern;
}

}

}
