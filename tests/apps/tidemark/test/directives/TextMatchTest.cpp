#include "apps/tidemark/test/directives/TextMatch.h"

#include <gtest/gtest.h>

namespace tidemark::test {

namespace {

TEST(TextMatch, AMarkInADirectiveMatchesEitherEncoding) {
  EXPECT_TRUE(textMatches("§score", "\xC2\xA7score"));
  EXPECT_TRUE(textMatches("§score", "\xA7score"));
  EXPECT_TRUE(textMatches("a§b§", "a\xA7"
                                  "b\xC2\xA7"));
  EXPECT_FALSE(textMatches("§score", "score"));
  EXPECT_FALSE(textMatches("§score", "\xC2score"));
}

TEST(TextMatch, AMarkThatIsWrittenAsAByteIsTheSameMark) {
  EXPECT_TRUE(textMatches("\xA7score", "\xA7score"));
  EXPECT_TRUE(textMatches("\xA7score", "\xC2\xA7score"));
}

TEST(TextMatch, IsOfTheWholeText) {
  EXPECT_TRUE(textMatches("", ""));
  EXPECT_FALSE(textMatches("a", "ab"));
  EXPECT_FALSE(textMatches("ab", "a"));
}

TEST(TextMatch, FindsAPart) {
  EXPECT_TRUE(textContained("b§", "ab\xA7"
                                  "c"));
  EXPECT_TRUE(textContained("", "x"));
  EXPECT_FALSE(textContained("bc", "ab c"));
}

TEST(TextMatch, CountsPartsThatDoNotOverlap) {
  EXPECT_EQ(countOccurrences("aa", "aaaaa"), 2u);
  EXPECT_EQ(countOccurrences("a", "banana"), 3u);
  EXPECT_EQ(countOccurrences("§", "\xA7x\xC2\xA7"), 2u);
  EXPECT_EQ(countOccurrences("b", "a"), 0u);
  EXPECT_EQ(countOccurrences("", "a"), 0u);
}

TEST(TextMatch, CharactersMatchTheirBytesInTheCodePage) {
  EXPECT_TRUE(textMatches("gr\xC3\xBCn \xE2\x82\xAC", "gr\xFCn \x80"));
  EXPECT_TRUE(textContained("\xC3\xBC", "gr\xFCn"));
  EXPECT_EQ(countOccurrences("\xC3\xBC", "\xFC \xFC"), 2u);
  EXPECT_FALSE(textMatches("gr\xC3\xBCn", "gr\xC3\xBC\xFCn"));
  EXPECT_FALSE(textMatches("gr\xFCn", "gr\xC3\xBCn"));
}

TEST(TextMatch, TheMarkIsAByte) {
  EXPECT_TRUE(holdsGlobalMark("x§"));
  EXPECT_TRUE(holdsGlobalMark("\xA7"));
  EXPECT_FALSE(holdsGlobalMark("x"));
}

}

}
