#include "qsf/base/StringHash.h"
#include "qsf/base/StringHashManager.h"

#include <gtest/gtest.h>

namespace {

using qsf::StringHash;

/// The textbook algorithm, written out apart from the product's: FNV-1a with the terminating NUL as a further byte.
std::uint32_t hashByHand(const std::string& text) {
  std::uint64_t hash = 2166136261u;
  for (std::size_t i = 0; i <= text.size(); ++i) {
    const int character = i < text.size() ? static_cast<signed char>(text[i]) : 0;
    hash ^= static_cast<std::uint32_t>(character);
    hash = (hash * 16777619u) & 0xFFFFFFFFu;
  }
  return static_cast<std::uint32_t>(hash);
}

TEST(StringHash, MixesInTheTerminatingNul) {
  // "a" alone is 0xE40C292C in the published FNV-1a test vectors; the NUL adds one multiplication.
  EXPECT_EQ(StringHash("a").getHash(), static_cast<std::uint32_t>(0xE40C292Cull * 16777619u));
  // "foobar" is 0xBF9CF968 there.
  EXPECT_EQ(StringHash("foobar").getHash(), static_cast<std::uint32_t>(0xBF9CF968ull * 16777619u));
  EXPECT_NE(StringHash("a").getHash(), 0xE40C292Cu);
}

TEST(StringHash, TakesBytesAsSignedCharacters) {
  for (const std::string text : {"\xA7", "v\xC2\xA7x", "\xFF\x80\x7F",
                                 "stra\xDF"
                                 "e"})
    EXPECT_EQ(StringHash(text).getHash(), hashByHand(text)) << text;
  // An unsigned byte would give this.
  const std::uint32_t unsignedHash = static_cast<std::uint32_t>(((2166136261u ^ 0xA7u) * 16777619ull) & 0xFFFFFFFFu);
  EXPECT_NE(StringHash("\xA7").getHash(), static_cast<std::uint32_t>(unsignedHash * 16777619ull));
}

TEST(StringHash, OfTheEmptyTextIsUninitialised) {
  EXPECT_EQ(StringHash("").getHash(), 0xFFFFFFFFu);
  EXPECT_EQ(StringHash(std::string()).getHash(), StringHash().getHash());
  EXPECT_FALSE(StringHash("").isInitialized());
  EXPECT_TRUE(StringHash("x").isInitialized());
}

TEST(StringHash, IsTheSameForEveryKindOfText) {
  constexpr StringHash constant("em5::PersonComponent");
  EXPECT_EQ(constant, StringHash(std::string("em5::PersonComponent")));
  EXPECT_EQ(constant, StringHash(std::string_view("em5::PersonComponent")));
  EXPECT_EQ(constant.getHash(), hashByHand("em5::PersonComponent"));
  EXPECT_EQ(StringHash(5u).getHash(), 5u);
}

TEST(StringHash, KeepsBytesBehindAnEmbeddedNul) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(StringHash(text).getHash(), hashByHand(text));
  EXPECT_NE(StringHash(text), StringHash("a"));
}

TEST(StringHashManager, RemembersTheFirstTextOfAHash) {
  qsf::StringHashManager manager;
  manager.registerStringHash(StringHash("text"), "text");
  manager.registerStringHash(StringHash("text"), "another");
  EXPECT_EQ(manager.getStringByHash(StringHash("text")), "text");
  EXPECT_EQ(manager.getStringByHash(StringHash("never registered")), "");
}

}
