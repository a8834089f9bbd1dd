#include "apps/tidemark/text/Encoding.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tidemark {

namespace {

TEST(Encoding, CodePageHasASingleByteForEachOfItsCharacters) {
  EXPECT_EQ(convertToCodePage1252("a§ß"), "a\xA7\xDF");
  EXPECT_EQ(convertToCodePage1252("€„–Ÿ"), "\x80\x84\x96\x9F");
}

TEST(Encoding, CodePageHasNoByteOrderMark) { EXPECT_EQ(convertToCodePage1252("\xEF\xBB\xBFx"), "x"); }

TEST(Encoding, FaultsNameTheLine) {
  for (const char* text : {"a\nb\xFF", "\n\xC3", "\n\xE2\x82", "\n\xC3x"}) {
    try {
      convertToCodePage1252(text);
      FAIL() << text;
    } catch (const std::invalid_argument& fault) {
      EXPECT_STREQ(fault.what(), "line 2 is no UTF-8");
    }
  }
  EXPECT_THROW(convertToCodePage1252("漢"), std::invalid_argument);
}

TEST(Encoding, OutputIsAlwaysUtf8) {
  EXPECT_EQ(toUtf8("gr\xC3\xBCn"), "grün");
  EXPECT_EQ(toUtf8("gr\xFCn \x80\xA7"), "grün €§");
  EXPECT_TRUE(isUtf8(toUtf8("\x81\xFF")));
}

TEST(Encoding, CarriageReturnsAreNotDoubled) {
  EXPECT_EQ(convertToCarriageReturns("a\nb\r\n\nc"), "a\r\nb\r\n\r\nc");
  EXPECT_EQ(convertToCarriageReturns(""), "");
}

TEST(Encoding, WidthCountsCharacters) { EXPECT_EQ(displayWidth("aß€"), 3u); }

}

}
