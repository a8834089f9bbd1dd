#include "apps/tidemark/test/directives/Words.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tidemark::test {

namespace {

std::vector<std::string> textsOf(std::string_view line) {
  std::vector<std::string> texts;
  for (const Word& word : splitWords(line))
    texts.push_back(word.text);
  return texts;
}

using Texts = std::vector<std::string>;

TEST(Words, AreSplitAtBlanksAndTabs) {
  EXPECT_EQ(textsOf("  variable\tbeats  == 3 "), (Texts{"variable", "beats", "==", "3"}));
}

TEST(Words, QuotesHoldAWordTogether) {
  EXPECT_EQ(textsOf("log INFO \"a  b\" never"), (Texts{"log", "INFO", "a  b", "never"}));
}

TEST(Words, AQuotedPartMayStandAnywhereInAWord) {
  EXPECT_EQ(textsOf("with C.P=\"1 2 3\"x"), (Texts{"with", "C.P=1 2 3x"}));
}

TEST(Words, EscapesInQuotesAreThoseOfCpp) {
  EXPECT_EQ(textsOf(R"("a\"b\\c\n\t\xA7\x00z")"), (Texts{std::string("a\"b\\c\n\t\xA7\0z", 10)}));
}

TEST(Words, ABackslashOutsideQuotesStandsForItself) { EXPECT_EQ(textsOf(R"(a\n)"), (Texts{R"(a\n)"})); }

TEST(Words, AnEmptyQuotedWordIsAWord) { EXPECT_EQ(textsOf("string x == \"\""), (Texts{"string", "x", "==", ""})); }

TEST(Words, FaultsAreTold) {
  EXPECT_THROW(splitWords("\"open"), DirectiveError);
  EXPECT_THROW(splitWords(R"("\q")"), DirectiveError);
  EXPECT_THROW(splitWords(R"("\xZ1")"), DirectiveError);
  EXPECT_THROW(splitWords(R"("\x1")"), DirectiveError);
  EXPECT_THROW(splitWords("\"\\"), DirectiveError);
}

TEST(Directives, AreDollarAtLines) {
  EXPECT_EQ(directiveName("$ @expect x"), "expect");
  EXPECT_EQ(directiveName("  \t$@for 3"), "for");
  EXPECT_EQ(directiveName("$   @end\r"), "end");
  EXPECT_EQ(directiveName("\xEF\xBB\xBF$ @mode X"), "mode");
  EXPECT_EQ(directiveName("$ A comment with an @ in it"), std::nullopt);
  EXPECT_EQ(directiveName("InitConditions(); $ @expect"), std::nullopt);
  EXPECT_EQ(directiveName("@expect"), std::nullopt);
  EXPECT_EQ(directiveName(""), std::nullopt);
}

TEST(Directives, KeepTheirTextAndLine) {
  const auto directive = readDirective("$ @expect variable  x == 1 \r\n", 7);
  ASSERT_TRUE(directive);
  EXPECT_EQ(directive->line, 7);
  EXPECT_EQ(directive->name, "expect");
  EXPECT_EQ(directive->text, "variable  x == 1");
  EXPECT_EQ(directive->words.size(), 4u);
}

TEST(Cursor, AQuotedWordIsNoKeyword) {
  WordCursor words(splitWords("\"never\" never"));
  EXPECT_FALSE(words.takeIf("never"));
  EXPECT_EQ(words.take("a text"), "never");
  EXPECT_TRUE(words.takeIf("never"));
  EXPECT_NO_THROW(words.requireEnd());
}

TEST(Cursor, FaultsNameWhatIsMissing) {
  WordCursor words(splitWords("x"));
  EXPECT_THROW(words.require("=="), DirectiveError);
  EXPECT_THROW(words.requireEnd(), DirectiveError);
  EXPECT_THROW(words.takeNumber("the number"), DirectiveError);
  try {
    words.take("the operator");
    FAIL();
  } catch (const DirectiveError& fault) {
    EXPECT_STREQ(fault.what(), "the operator is missing at the end");
  }
}

TEST(Numbers, ArePlainDecimalsAndInfinities) {
  EXPECT_EQ(parseNumber("-1.5"), -1.5);
  EXPECT_EQ(parseNumber("1e3"), 1000.0);
  EXPECT_EQ(parseNumber("+2"), 2.0);
  EXPECT_TRUE(std::isinf(*parseNumber("-inf")));
  EXPECT_TRUE(std::isnan(*parseNumber("nan")));
  for (const char* text : {"", "x", "1x", "infinity", "+-1", "1 2", "0x10"})
    EXPECT_FALSE(parseNumber(text)) << text;
}

TEST(Numbers, IdsHoldSixtyFourBits) {
  EXPECT_EQ(parseId("18446744073709551615"), 18446744073709551615u);
  EXPECT_FALSE(parseId("18446744073709551616"));
  EXPECT_FALSE(parseId("-1"));
  EXPECT_FALSE(parseId(""));
}

}

}
