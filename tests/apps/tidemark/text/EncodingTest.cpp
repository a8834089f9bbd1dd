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

TEST(Encoding, SurrogatesAndOverlongFormsAreNoUtf8) {
  EXPECT_TRUE(isUtf8("a\xF0\x9F\x9A\x92"));
  for (const char* text : {"\xED\xA0\x80", "\xE0\x80\xA7", "\xC0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"})
    EXPECT_FALSE(isUtf8(text)) << text;
}

TEST(Encoding, CellsAreShortAndWithoutControlCharacters) {
  EXPECT_EQ(toCell("grün\x1b[2J", 80), "grün?[2J");
  EXPECT_EQ(toCell("a\xC2\x9B"
                   "b",
                   80),
            "a?b");
  EXPECT_EQ(toCell("äöü", 3), "äöü");
  EXPECT_EQ(toCell("äöüß", 3), "äöü...");
}

TEST(Encoding, XmlTextsHoldWhatXmlAllows) {
  EXPECT_EQ(toXmlText("a\tb\n\x01\x7F<ü\xFF"), "a\tb\n?"
                                               "?<Ã¼ÿ");
}

}

}
