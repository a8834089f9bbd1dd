#include "qsf/game/BitStream.h"

#include <gtest/gtest.h>

using qsf::game::BitStream;

namespace {

TEST(BitStream, PacksBitByBitTheHighestFirst) {
  BitStream stream;
  stream.write(true);
  stream.write(std::uint8_t{5}, 3);
  stream.write(std::uint16_t{0x0FF0}, 12);
  EXPECT_EQ(stream.getNumberOfBits(), 16u);
  EXPECT_EQ(stream.getBytes(), (std::vector<std::uint8_t>{0xDF, 0xF0}));
}

TEST(BitStream, ReadsWhatWasWritten) {
  BitStream stream;
  stream.write(false);
  stream.write(std::uint32_t{0xDEADBEEF});
  stream.write(std::uint64_t{0xFFFFFFFFFFFFFFFF});
  stream.write(std::string("näher"), 8);
  stream.write(std::uint8_t{7});
  bool kind = true;
  std::uint32_t hash = 0;
  std::uint64_t id = 0;
  std::string text;
  std::uint8_t last = 0;
  EXPECT_TRUE(stream.read(kind) && stream.read(hash) && stream.read(id) && stream.read(text, 8) && stream.read(last));
  EXPECT_FALSE(kind);
  EXPECT_EQ(hash, 0xDEADBEEF);
  EXPECT_EQ(id, 0xFFFFFFFFFFFFFFFF);
  EXPECT_EQ(text, "näher");
  EXPECT_EQ(last, 7);
  EXPECT_EQ(stream.getRemainingBits(), 0u);
}

TEST(BitStream, AReadBeyondTheEndLeavesEverythingAsItWas) {
  BitStream stream;
  stream.write(std::uint8_t{0xA5}, 7);
  std::uint8_t value = 9;
  EXPECT_FALSE(stream.read(value, 8));
  EXPECT_EQ(value, 9);
  EXPECT_EQ(stream.getRemainingBits(), 7u);
  EXPECT_TRUE(stream.read(value, 7));
  EXPECT_EQ(value, 0x25);
}

TEST(BitStream, ATextThatPromisesMoreThanIsLeftIsRefusedBeforeMemoryIsTaken) {
  BitStream stream;
  stream.write(std::uint32_t{0xFFFFFFFF});
  stream.write(std::uint8_t{'a'});
  std::string text = "before";
  EXPECT_FALSE(stream.read(text, 32));
  EXPECT_EQ(text, "before");
  EXPECT_EQ(stream.getRemainingBits(), 40u);
}

TEST(BitStream, ALongTextIsCutAtTheEndOfACharacter) {
  BitStream stream;
  stream.write(std::string(14, 'a') + "ä" + "b", 4);
  std::string text;
  ASSERT_TRUE(stream.read(text, 4));
  EXPECT_EQ(text, std::string(14, 'a')) << "the umlaut has two bytes, and 15 is the most that 4 bits tell";
}

TEST(BitStream, TakesApartAndPutsTogetherAtAnyBit) {
  BitStream whole;
  whole.write(true);
  BitStream part;
  part.write(std::uint32_t{0x12345}, 21);
  whole.append(part);
  EXPECT_EQ(whole.getNumberOfBits(), 22u);
  bool first = false;
  BitStream back;
  ASSERT_TRUE(whole.read(first) && whole.read(back, 21));
  EXPECT_EQ(back.getBytes(), part.getBytes());
  EXPECT_FALSE(whole.read(back, 1));
}

TEST(BitStream, BitsBeyondTheBytesArentThere) {
  BitStream stream({0xFF, 0xFF}, 100);
  EXPECT_EQ(stream.getNumberOfBits(), 16u);
  BitStream short_({0xFF}, 3);
  EXPECT_EQ(short_.getBytes(), std::vector<std::uint8_t>{0xE0});
}

}
