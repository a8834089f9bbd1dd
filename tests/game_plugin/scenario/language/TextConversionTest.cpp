#include "game_plugin/scenario/language/TextConversion.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace {

/// Texts that look like numbers more often than not, without end and always the same.
class Texts {
public:
  std::string next(std::string_view letters, std::size_t longest) {
    std::string text;
    for (std::size_t left = draw() % (longest + 1); left > 0; --left)
      text += letters[draw() % letters.size()];
    return text;
  }

private:
  std::uint32_t draw() { return (mState = mState * 1664525u + 1013904223u) >> 8; }
  std::uint32_t mState = 1;
};

void expectAsTheLibrary(const std::string& text) {
  float expected = 0;
  float found = 0;
  const bool isNumber = boost::conversion::try_lexical_convert(text, expected);
  ASSERT_EQ(script::textToFloat(text, found), isNumber) << '"' << text << '"';
  if (!isNumber) return;
  ASSERT_EQ(std::bit_cast<std::uint32_t>(found), std::bit_cast<std::uint32_t>(expected)) << text;
}

TEST(TextConversion, NumbersAreReadAsTheLibraryReadsThem) {
  for (const char* text : {"0",
                           "-0",
                           "007",
                           "1.5",
                           "-3.25",
                           "16777217",
                           "0.1",
                           "3.4028235e38",
                           "1e39",
                           "1.",
                           ".5",
                           "-",
                           "+1",
                           "1e5",
                           "inf",
                           "-nan",
                           "1 ",
                           " 1",
                           "1,5",
                           "0x10",
                           "1.2.3",
                           "99999999999999999999",
                           "999999999999999999999",
                           "0.00000000000000000001",
                           "123456789012345678901234567890"})
    expectAsTheLibrary(text);
  Texts texts;
  for (int i = 0; i < 20000; ++i)
    expectAsTheLibrary(texts.next("0123456789012345678901234567890123456789-..+eE x", 24));
}

TEST(TextConversion, TextsAreSplitAsTheLibrarySplitsThem) {
  Texts texts;
  for (int i = 0; i < 5000; ++i) {
    const std::string text = texts.next("  a7\t", 12);
    std::vector<std::string> expected;
    boost::algorithm::split(expected, text, boost::algorithm::is_any_of(" "), boost::algorithm::token_compress_on);
    ASSERT_EQ(script::splitAtBlanks(text), expected) << '"' << text << '"';
  }
}

}
