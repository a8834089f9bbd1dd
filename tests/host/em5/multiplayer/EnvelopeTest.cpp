#include "em5/multiplayer/NetworkTransport.h"

#include <gtest/gtest.h>

using namespace em5::multiplayer;

namespace {

Envelope makeEnvelope() {
  Envelope envelope;
  envelope.kind = Envelope::Kind::DATA_CACHE;
  envelope.sender = 2;
  envelope.number = 77;
  envelope.stream.write(std::uint16_t{0x1234}, 13);
  return envelope;
}

TEST(Envelope, ComesBackAsItWent) {
  const std::vector<std::uint8_t> bytes = makeEnvelope().encode();
  const auto back = Envelope::decode(bytes.data(), bytes.size());
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(back->kind, Envelope::Kind::DATA_CACHE);
  EXPECT_EQ(back->sender, 2);
  EXPECT_EQ(back->number, 77u);
  EXPECT_EQ(back->stream.getNumberOfBits(), 13u);
  EXPECT_EQ(back->stream.getBytes(), makeEnvelope().stream.getBytes());
}

TEST(Envelope, WhatIsNoneIsRefused) {
  std::vector<std::uint8_t> bytes = makeEnvelope().encode();
  EXPECT_FALSE(Envelope::decode(bytes.data(), 9)) << "too short for the head";
  EXPECT_FALSE(Envelope::decode(bytes.data(), bytes.size() - 1)) << "bits that aren't there";
  bytes.push_back(0);
  EXPECT_FALSE(Envelope::decode(bytes.data(), bytes.size())) << "bytes that nobody counts";
  bytes.pop_back();
  bytes[0] = 9;
  EXPECT_FALSE(Envelope::decode(bytes.data(), bytes.size())) << "an unknown kind";
  const std::vector<std::uint8_t> large(Envelope::MOST_BYTES + 100, 1);
  EXPECT_FALSE(Envelope::decode(large.data(), large.size()));
}

TEST(NetworkPacket, EachKindComesBack) {
  using detail::NetworkPacket;
  NetworkPacket accept;
  accept.kind = NetworkPacket::Kind::ACCEPT;
  accept.player = 3;
  accept.others = {0, 1};
  accept.text = "welcome";
  const std::vector<std::uint8_t> bytes = accept.encode();
  const auto back = NetworkPacket::decode(bytes.data(), bytes.size());
  ASSERT_TRUE(back.has_value());
  EXPECT_EQ(back->player, 3);
  EXPECT_EQ(back->others, accept.others);
  EXPECT_EQ(back->text, "welcome");
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_FALSE(NetworkPacket::decode(bytes.data(), size)) << size;
}

TEST(NetworkPacket, AGreetingOfAnotherProgramIsNone) {
  detail::NetworkPacket hello;
  hello.text = "hello";
  std::vector<std::uint8_t> bytes = hello.encode();
  ASSERT_TRUE(detail::NetworkPacket::decode(bytes.data(), bytes.size()));
  bytes[1] ^= 1;
  EXPECT_FALSE(detail::NetworkPacket::decode(bytes.data(), bytes.size()));
}

TEST(NetworkAddress, IsReadInItsParts) {
  EXPECT_EQ(NetworkAddress::parse("").host, "127.0.0.1");
  EXPECT_EQ(NetworkAddress::parse("").port, 0);
  EXPECT_EQ(NetworkAddress::parse("4000").port, 4000);
  EXPECT_EQ(NetworkAddress::parse("0.0.0.0").host, "0.0.0.0");
  EXPECT_EQ(NetworkAddress::parse("example.org:99").host, "example.org");
  EXPECT_EQ(NetworkAddress::parse("example.org:99").port, 99);
  EXPECT_THROW(NetworkAddress::parse("a:b"), std::invalid_argument);
  EXPECT_THROW(NetworkAddress::parse("a:70000"), std::invalid_argument);
}

}
