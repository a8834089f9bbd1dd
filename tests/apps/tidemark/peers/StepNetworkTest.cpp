#include "apps/tidemark/peers/StepNetwork.h"

#include <gtest/gtest.h>

namespace tidemark::peers {

namespace {

std::vector<std::uint8_t> bytes(std::uint8_t value) { return {value}; }

TEST(StepNetwork, WhatIsSentArrivesInTheNextFrame) {
  StepNetwork network({2, 0, 0, 1});
  network.send(5, 1, 0, bytes(7));
  EXPECT_TRUE(network.take(5, 0).empty());
  const auto arrivals = network.take(6, 0);
  ASSERT_EQ(arrivals.size(), 1u);
  EXPECT_EQ(arrivals[0].sender, 1u);
  EXPECT_EQ(arrivals[0].bytes, bytes(7));
  EXPECT_TRUE(network.take(7, 0).empty());
}

TEST(StepNetwork, DelayIsAddedToThat) {
  StepNetwork network({2, 3, 0, 1});
  network.send(5, 0, 1, bytes(7));
  EXPECT_TRUE(network.take(8, 1).empty());
  EXPECT_EQ(network.take(9, 1).size(), 1u);
}

TEST(StepNetwork, ArrivalsOfAFrameStandInTheOrderOfTheirSenders) {
  StepNetwork network({3, 0, 0, 1});
  network.send(1, 2, 0, bytes(1));
  network.send(1, 1, 0, bytes(2));
  network.send(1, 1, 0, bytes(3));
  const auto arrivals = network.take(2, 0);
  ASSERT_EQ(arrivals.size(), 3u);
  EXPECT_EQ(arrivals[0].bytes, bytes(2));
  EXPECT_EQ(arrivals[1].bytes, bytes(3));
  EXPECT_EQ(arrivals[2].bytes, bytes(1));
}

TEST(StepNetwork, LossDelaysAndKeepsTheOrder) {
  StepNetwork network({2, 0, 50, 42});
  std::vector<std::uint8_t> order;
  std::uint64_t late = 0;
  for (std::uint64_t frame = 0; frame < 200; ++frame) {
    if (frame < 100) network.send(frame, 1, 0, bytes(static_cast<std::uint8_t>(frame)));
    for (const auto& arrival : network.take(frame + 1, 0)) {
      order.push_back(arrival.bytes[0]);
      late += frame > arrival.bytes[0];
    }
  }
  ASSERT_EQ(order.size(), 100u);
  for (std::uint8_t i = 0; i < 100; ++i)
    EXPECT_EQ(order[i], i);
  EXPECT_GT(late, 20u) << "half of them were lost once at least";
}

TEST(StepNetwork, EqualSeedsLoseTheSame) {
  const auto arrivalsOf = [](std::uint64_t seed) {
    StepNetwork network({2, 1, 30, seed});
    std::vector<std::size_t> counts;
    for (std::uint64_t frame = 0; frame < 50; ++frame) {
      network.send(frame, 0, 1, bytes(1));
      counts.push_back(network.take(frame + 1, 1).size());
    }
    return counts;
  };
  EXPECT_EQ(arrivalsOf(3), arrivalsOf(3));
  EXPECT_NE(arrivalsOf(3), arrivalsOf(4));
}

TEST(StepNetwork, WhoLeavesIsHeardOutFirst) {
  StepNetwork network({3, 1, 0, 1});
  network.send(4, 1, 0, bytes(9));
  network.send(4, 0, 1, bytes(8));
  network.leave(4, 1);
  network.send(5, 1, 0, bytes(7));
  EXPECT_TRUE(network.take(5, 0).empty());
  const auto arrivals = network.take(6, 0);
  ASSERT_EQ(arrivals.size(), 2u);
  EXPECT_EQ(arrivals[0].bytes, bytes(9));
  EXPECT_TRUE(arrivals[1].left);
  EXPECT_TRUE(network.take(6, 1).empty()) << "nothing reaches it any more";
  EXPECT_TRUE(network.take(6, 2).at(0).left);
  EXPECT_TRUE(network.take(20, 0).empty());
}

}

}
