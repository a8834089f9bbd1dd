#include "em5/multiplayer/NetworkTransport.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace em5::multiplayer;

namespace {

constexpr std::chrono::seconds PATIENCE{20};

Greeting welcome(const std::string& greeting) { return {greeting != "stranger", "for " + greeting}; }

/// A server that is served on a thread of its own while a client calls.
class NetworkTransportTest : public testing::Test {
protected:
  NetworkTransportTest() : server({"127.0.0.1", 0}, &welcome) {}

  std::unique_ptr<NetworkClient> call(const std::string& greeting) {
    std::atomic<bool> done = false;
    std::thread serving([&] {
      while (!done) {
        take(server.receive());
        server.flush();
        std::this_thread::yield();
      }
    });
    std::unique_ptr<NetworkClient> client;
    try {
      client = std::make_unique<NetworkClient>(NetworkAddress{"127.0.0.1", server.getPort()}, greeting, PATIENCE);
    } catch (const std::exception& refusal) {
      reason = refusal.what();
    }
    done = true;
    serving.join();
    return client;
  }
  void take(std::vector<Transport::Event> events) {
    std::move(events.begin(), events.end(), std::back_inserter(heard));
  }
  /// Serves both ends until something holds, or patience ends.
  template <class Until> bool serve(NetworkClient* client, Until until) {
    const auto end = std::chrono::steady_clock::now() + PATIENCE;
    while (!until() && std::chrono::steady_clock::now() < end) {
      take(server.receive());
      server.flush();
      if (!client) continue;
      auto events = client->receive();
      std::move(events.begin(), events.end(), std::back_inserter(told));
      client->flush();
    }
    return until();
  }
  static Envelope message(std::uint32_t number) {
    Envelope envelope;
    envelope.number = number;
    envelope.stream.write(number);
    return envelope;
  }

  NetworkServer server;
  std::vector<Transport::Event> heard; ///< at the server
  std::vector<Transport::Event> told;  ///< at the client
  std::string reason;
};

TEST_F(NetworkTransportTest, PlayersGetTheirIndexByTheOrderOfJoining) {
  const auto first = call("first");
  const auto second = call("second");
  ASSERT_TRUE(first && second) << reason;
  EXPECT_EQ(first->getIndex(), 1);
  EXPECT_EQ(first->getAnswer(), "for first");
  EXPECT_EQ(first->getOthers(), std::vector<std::uint8_t>{0});
  EXPECT_EQ(second->getIndex(), 2);
  EXPECT_EQ(second->getOthers(), (std::vector<std::uint8_t>{0, 1}));
  ASSERT_EQ(heard.size(), 2u);
  EXPECT_EQ(heard[0].kind, Transport::Event::Kind::JOINED);
  EXPECT_EQ(heard[1].player, 2);
  ASSERT_TRUE(serve(first.get(), [&] { return !told.empty(); }));
  EXPECT_EQ(told[0].kind, Transport::Event::Kind::JOINED);
  EXPECT_EQ(told[0].player, 2);
}

TEST_F(NetworkTransportTest, MessagesArriveInOrderBothWays) {
  const auto client = call("friend");
  ASSERT_TRUE(client) << reason;
  heard.clear();
  for (std::uint32_t i = 0; i < 500; ++i) {
    client->send(0, message(i));
    server.send(1, message(1000 + i));
  }
  ASSERT_TRUE(serve(client.get(), [&] { return heard.size() >= 500 && told.size() >= 500; }));
  for (std::uint32_t i = 0; i < 500; ++i) {
    EXPECT_EQ(heard[i].envelope.number, i);
    EXPECT_EQ(heard[i].player, 1);
    EXPECT_EQ(told[i].envelope.number, 1000 + i);
  }
}

TEST_F(NetworkTransportTest, WhoIsRefusedLearnsWhy) {
  EXPECT_EQ(call("stranger"), nullptr);
  EXPECT_EQ(reason, "the host refuses: for stranger");
  EXPECT_TRUE(heard.empty());
}

TEST_F(NetworkTransportTest, AFifthPlayerIsRefused) {
  const auto first = call("a");
  const auto second = call("b");
  const auto third = call("c");
  EXPECT_EQ(call("d"), nullptr);
  EXPECT_EQ(reason, "the host refuses: the game has its four players");
}

TEST_F(NetworkTransportTest, AClientThatGoesIsNoticedAndItsIndexIsFree) {
  auto first = call("a");
  const auto second = call("b");
  ASSERT_TRUE(first && second) << reason;
  first.reset();
  ASSERT_TRUE(serve(second.get(), [&] { return heard.size() >= 3 && !told.empty(); }));
  EXPECT_EQ(heard[2].kind, Transport::Event::Kind::LEFT);
  EXPECT_EQ(heard[2].player, 1);
  EXPECT_EQ(told.back().kind, Transport::Event::Kind::LEFT);
  EXPECT_EQ(told.back().player, 1);
  EXPECT_EQ(call("c")->getIndex(), 1);
}

TEST_F(NetworkTransportTest, NobodyAtTheAddressIsAFault) {
  EXPECT_THROW(NetworkClient({"127.0.0.1", 1}, "hello", std::chrono::milliseconds(200)), std::runtime_error);
  EXPECT_THROW(NetworkServer({"203.0.113.1", 0}, &welcome), std::runtime_error);
}

}
