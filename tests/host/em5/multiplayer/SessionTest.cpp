#include "em5/multiplayer/Session.h"

#include "em5/game/Game.h"
#include "em5/multiplayer/NetworkManager.h"
#include "host/em5/SessionFixture.h"

namespace {

using namespace em5::multiplayer;

struct Sent {
  std::uint8_t receiver;
  Envelope envelope;
};

/// A road that ends in the test's hands.
struct FakeTransport : Transport {
  explicit FakeTransport(std::vector<Sent>& outbox) : sent(outbox) {}
  void send(std::uint8_t receiver, const Envelope& envelope) override { sent.push_back({receiver, envelope}); }
  std::vector<Event> receive() override { return std::exchange(events, {}); }
  std::vector<Event> events;
  std::vector<Sent>& sent;
};

struct NotingHandler : OperationMessageHandler {
  explicit NotingHandler(std::vector<std::string>& into) : notes(into) {}
  void onPlayerJoined(std::uint32_t player, void* /*data*/) override {
    notes.push_back("joined " + std::to_string(player));
  }
  void onPlayerLeft(std::uint32_t player) override { notes.push_back("left " + std::to_string(player)); }
  bool receiveMessage(std::uint32_t sender, std::uint32_t number, qsf::game::BitStream& stream) override {
    std::uint8_t value = 0;
    if (!stream.read(value)) return false;
    if (value == 13) throw std::runtime_error("unlucky");
    notes.push_back(std::to_string(number) + " from " + std::to_string(sender) + ": " + std::to_string(value));
    return true;
  }
  std::vector<std::string>& notes;
};

class MultiplayerSessionTest : public SessionTest {
protected:
  SessionBase& start(unsigned int index, const std::vector<std::uint8_t>& others) {
    em5::HostSession::Options options;
    options.players = 4;
    options.localPlayer = index;
    open(options);
    network().getSessionCreatedSignal().connect([this](SessionBase& created) {
      created.getOperationMessageHandlerManager().registerHandler(48, 0, std::make_unique<NotingHandler>(notes));
      announced.push_back(&created);
    });
    network().setTrafficListener([this](const Traffic& told) { traffic.push_back(told); });
    return session->createSession(makeTransport(), others);
  }
  em5::NetworkManager& network() const { return session->getNetworkManager(); }
  std::unique_ptr<Transport> makeTransport() {
    auto made = std::make_unique<FakeTransport>(sent);
    transport = made.get();
    return made;
  }
  static qsf::game::BitStream byte(std::uint8_t value) {
    qsf::game::BitStream stream;
    stream.write(value);
    return stream;
  }
  void arrive(std::uint8_t player, std::uint8_t saysSender, std::uint32_t number, const qsf::game::BitStream& stream) {
    transport->events.push_back(
        {Transport::Event::Kind::MESSAGE, player, {Envelope::Kind::OPERATION, saysSender, number, stream}});
  }

  std::vector<Sent> sent;
  std::vector<std::string> notes;
  std::vector<SessionBase*> announced;
  std::vector<Traffic> traffic;
  FakeTransport* transport = nullptr;
};

TEST_F(MultiplayerSessionTest, ASessionIsAnnouncedBeforeAnybodyIsInIt) {
  SessionBase& made = start(0, {1, 2});
  ASSERT_EQ(announced.size(), 1u);
  EXPECT_EQ(announced[0], &made);
  EXPECT_EQ(notes, (std::vector<std::string>{"joined 1", "joined 2"})); // the handler was there already
  EXPECT_TRUE(network().isMultiplayActive());
  EXPECT_EQ(network().getSession(), &made);
  EXPECT_EQ(network().getMultiplayerHost(), &made);
  EXPECT_EQ(network().getMultiplayerClient(), nullptr);
}

TEST_F(MultiplayerSessionTest, WithAnotherIndexThanZeroItIsAClients) {
  SessionBase& made = start(2, {0, 1});
  EXPECT_EQ(network().getMultiplayerClient(), &made);
  EXPECT_EQ(network().getMultiplayerHost(), nullptr);
  EXPECT_EQ(made.getLocalIndex(), 2u);
}

TEST_F(MultiplayerSessionTest, WithoutASessionThereIsNothing) {
  open();
  EXPECT_FALSE(network().isMultiplayActive());
  EXPECT_EQ(network().getSession(), nullptr);
  EXPECT_EQ(network().getMultiplayerHost(), nullptr);
  EXPECT_NO_THROW(run(0.1));
}

TEST_F(MultiplayerSessionTest, AnotherSessionEndsTheOneBefore) {
  start(0, {1});
  network().createSession(1, makeTransport(), {0});
  EXPECT_EQ(announced.size(), 2u);
  EXPECT_EQ(network().getMultiplayerHost(), nullptr);
  EXPECT_NE(network().getMultiplayerClient(), nullptr);
  network().endSession();
  EXPECT_FALSE(network().isMultiplayActive());
  EXPECT_EQ(network().getMultiplayerClient(), nullptr);
}

TEST_F(MultiplayerSessionTest, AFaultyListenerOfTheSignalCostsTheSessionNothing) {
  open();
  network().getSessionCreatedSignal().connect([](SessionBase&) { throw std::runtime_error("no"); });
  EXPECT_NO_THROW(session->createSession(makeTransport(), {1}));
  EXPECT_TRUE(network().isMultiplayActive());
  EXPECT_TRUE(logged(4, "a listener of created sessions"));
}

TEST_F(MultiplayerSessionTest, TheHostSendsToOneOrToAllWhoAreThere) {
  start(0, {1, 3});
  server::Host& host = *network().getMultiplayerHost();
  host.sendOperationMessageToAllClients(48, byte(1));
  host.sendOperationMessageToClient(3, 48, byte(2));
  for (const std::uint32_t nobody : {0u, 2u, 300u, 259u})
    host.sendOperationMessageToClient(nobody, 48, byte(3));
  ASSERT_EQ(sent.size(), 3u);
  EXPECT_EQ(sent[0].receiver, 1u);
  EXPECT_EQ(sent[1].receiver, 3u);
  EXPECT_EQ(sent[2].receiver, 3u);
  EXPECT_EQ(sent[2].envelope.number, 48u);
  EXPECT_EQ(sent[2].envelope.sender, 0u);
  EXPECT_EQ(traffic.size(), 3u);
}

TEST_F(MultiplayerSessionTest, AMessageBeyondAllMeasureIsNotSent) {
  start(1, {0});
  network().getMultiplayerClient()->sendOperationMessageToHost(
      48, qsf::game::BitStream(std::vector<std::uint8_t>(Envelope::MOST_BYTES + 1), (Envelope::MOST_BYTES + 1) * 8));
  EXPECT_TRUE(sent.empty());
  EXPECT_TRUE(logged(4, "Operation message 48 is too long to be sent"));
}

TEST_F(MultiplayerSessionTest, TheConnectionTellsWhoSentAMessage) {
  start(0, {1, 2});
  notes.clear();
  arrive(2, 1, 48, byte(5)); // says that it is player 1's
  session->startGame(EMPTY_MAP);
  session->runFrame(TICK);
  EXPECT_EQ(notes, std::vector<std::string>{"48 from 2: 5"});
  ASSERT_EQ(traffic.size(), 1u);
  EXPECT_EQ(traffic[0].player, 2u);
  EXPECT_TRUE(traffic[0].understood);
}

TEST_F(MultiplayerSessionTest, MessagesThatNobodyUnderstandsAreCountedAndDropped) {
  start(0, {1});
  notes.clear();
  arrive(1, 1, 4711, byte(5));              // no handler
  arrive(1, 1, 48, qsf::game::BitStream()); // too short
  arrive(1, 1, 48, byte(13));               // its handler throws
  arrive(1, 1, 48, byte(6));
  session->startGame(EMPTY_MAP);
  session->runFrame(TICK);
  EXPECT_EQ(notes, std::vector<std::string>{"48 from 1: 6"});
  ASSERT_EQ(traffic.size(), 4u);
  EXPECT_FALSE(traffic[0].understood);
  EXPECT_FALSE(traffic[1].understood);
  EXPECT_FALSE(traffic[2].understood);
  EXPECT_TRUE(traffic[3].understood);
  EXPECT_TRUE(logged(4, "the handler of operation message 48"));
}

TEST_F(MultiplayerSessionTest, WhoJoinsHasAPlayerAndWhoLeavesKeepsIt) {
  SessionBase& made = start(0, {});
  session->startGame(EMPTY_MAP);
  transport->events.push_back({Transport::Event::Kind::JOINED, 3, {}});
  session->runFrame(TICK);
  EXPECT_EQ(made.getOthers(), std::set<std::uint8_t>{3});
  const auto playerThree = [] {
    return qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getPlayerByIndex(3) != nullptr;
  };
  EXPECT_TRUE(playerThree());
  transport->events.push_back({Transport::Event::Kind::LEFT, 3, {}});
  transport->events.push_back({Transport::Event::Kind::LEFT, 3, {}});
  session->runFrame(TICK);
  EXPECT_TRUE(made.getOthers().empty());
  EXPECT_TRUE(playerThree());
  EXPECT_EQ(notes, (std::vector<std::string>{"joined 3", "left 3"}));
  EXPECT_TRUE(logged(3, "Player 3 has left the session"));
  network().getMultiplayerHost()->sendOperationMessageToClient(3, 48, byte(1));
  EXPECT_TRUE(sent.empty());
}

TEST_F(MultiplayerSessionTest, DataCacheUpdatesAreTakenFromTheHostOnly) {
  start(2, {0, 1});
  for (const std::uint8_t from : {0, 1})
    transport->events.push_back(
        {Transport::Event::Kind::MESSAGE, from, {Envelope::Kind::DATA_CACHE, from, 1, byte(0)}});
  session->startGame(EMPTY_MAP);
  EXPECT_NO_THROW(session->runFrame(TICK)); // nonsense, from a friend and from a stranger
  EXPECT_TRUE(traffic.empty());
}

}
