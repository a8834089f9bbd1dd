#include "apps/tidemark/peers/Machines.h"
#include "apps/tidemark/peers/StepTransport.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tidemark::peers {

namespace {

using Event = em5::multiplayer::Transport::Event;

const auto nowhere = [](unsigned int) { return std::string("/dev/null"); };

TEST(Machines, EachTellsItsLinesInTheOrderOfFramesAndMachines) {
  std::string told;
  const auto ends = runMachines(
      {3, 0, 0, 1}, nowhere,
      [](unsigned int machine, platform::BlockSocket& socket) {
        int frame = 0;
        StepTransport transport(socket, [&] { return std::to_string(machine) + char('a' + frame++) + " "; });
        transport.receive();
        transport.receive();
        sendResult(socket, "", "end" + std::to_string(machine));
        return 0;
      },
      [&](unsigned int, const std::string& lines) { told += lines; });
  EXPECT_EQ(told, "0a 1a 2a 0b 1b 2b ");
  ASSERT_EQ(ends.size(), 3u);
  EXPECT_EQ(ends[2].result, "end2");
  EXPECT_EQ(ends[2].status.code, 0);
}

TEST(Machines, WhatOneSendsTheOtherTakesInTheNextFrame) {
  const auto ends = runMachines(
      {2, 0, 0, 1}, nowhere,
      [](unsigned int machine, platform::BlockSocket& socket) {
        StepTransport transport(socket, [] { return std::string(); });
        std::string heard;
        for (std::uint32_t frame = 0; frame < 4; ++frame) {
          for (const Event& event : transport.receive())
            heard += std::to_string(frame) + ":" + std::to_string(event.envelope.number) + " ";
          if (machine == 1 && frame == 1) {
            em5::multiplayer::Envelope envelope;
            envelope.number = 48;
            transport.send(0, envelope);
          }
        }
        sendResult(socket, "", heard);
        return 0;
      },
      [](unsigned int, const std::string&) {});
  EXPECT_EQ(ends[0].result, "2:48 ");
  EXPECT_EQ(ends[1].result, "");
}

TEST(Machines, OneThatCrashesIsNoticedAndTakesNobodyWithIt) {
  const auto ends = runMachines(
      {3, 0, 0, 1}, nowhere,
      [](unsigned int machine, platform::BlockSocket& socket) {
        StepTransport transport(socket, [] { return std::string(); });
        std::string heard;
        for (int frame = 0; frame < 6; ++frame) {
          for (const Event& event : transport.receive())
            if (event.kind == Event::Kind::LEFT) heard += std::to_string(event.player) + " left";
          if (machine == 1 && frame == 2) std::_Exit(7);
        }
        sendResult(socket, "", heard);
        return 0;
      },
      [](unsigned int, const std::string&) {});
  EXPECT_EQ(ends[0].result, "1 left");
  EXPECT_EQ(ends[2].result, "1 left");
  EXPECT_FALSE(ends[1].result.has_value());
  EXPECT_EQ(ends[1].status.code, 7);
}

}

}
