#include "em5/multiplayer/DataCache.h"

#include "em5/multiplayer/DataCacheSystem.h"
#include "em5/multiplayer/Transport.h"
#include "em5/settings/GameSettingsGroup.h"
#include "host/em5/SessionFixture.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/map/Entity.h"

namespace {

using namespace em5::multiplayer;
using Tracking = DataCacheComponentExistenceTrackingBase;

qsf::game::BitStream bits(std::initializer_list<bool> values) {
  qsf::game::BitStream stream;
  for (const bool value : values)
    stream.write(value);
  return stream;
}

class DataCacheTest : public SessionTest {
protected:
  DataCacheTest() : entity((play(), *session->getQsf().getMainMap().createEntity(101))) {
    entity.getOrCreateComponent<qsf::MetadataComponent>();
  }
  bool exists() const { return entity.getComponent<qsf::MetadataComponent>() != nullptr; }
  void destroy() { entity.destroyComponentById(qsf::MetadataComponent::COMPONENT_ID); }
  static void take(Tracking& item, std::uint32_t tick, qsf::game::BitStream stream) {
    const qsf::Clock clock({}, tick);
    item.read(stream, clock);
    item.apply(clock);
  }

  qsf::Entity& entity;
};

TEST_F(DataCacheTest, ExistenceIsToldOnceWhenItChanges) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  EXPECT_FALSE(item.prepare());
  destroy();
  EXPECT_TRUE(item.prepare());
  qsf::game::BitStream stream;
  item.write(stream);
  EXPECT_EQ(stream.getNumberOfBits(), 2u);
  EXPECT_EQ(stream.getBytes().front(), 0x80); // changed, doesn't exist
  EXPECT_FALSE(item.prepare());
  entity.getOrCreateComponent<qsf::MetadataComponent>();
  EXPECT_TRUE(item.prepare());
}

TEST_F(DataCacheTest, AComponentThatComesAndGoesBetweenTwoTicksIsNoChange) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  destroy();
  entity.getOrCreateComponent<qsf::MetadataComponent>();
  EXPECT_FALSE(item.prepare());
}

TEST_F(DataCacheTest, AnEntityThatHasGoneIsNothingToTell) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  session->getQsf().getMainMap().destroyObjectById(101);
  EXPECT_FALSE(item.prepare());
  EXPECT_NO_THROW(take(item, 1, bits({true, false})));
}

TEST_F(DataCacheTest, AClientFollows) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  take(item, 1, bits({true, false}));
  EXPECT_FALSE(exists());
  take(item, 2, bits({true, true}));
  EXPECT_TRUE(exists());
  destroy();
  take(item, 3, bits({false, true})); // nothing has changed on the host
  EXPECT_FALSE(exists());
}

TEST_F(DataCacheTest, AStreamThatBreaksOffIsToldWithItsEntity) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  EXPECT_THROW(take(item, 1, bits({})), qsf::ReportedError);
  EXPECT_EQ(log.back(), std::make_pair(4, std::string("DataCacheComponentExistenceTrackingBase: Could not read the "
                                                      "component existence state for the entity \"101\" from the data "
                                                      "stream")));
  EXPECT_THROW(take(item, 2, bits({true})), std::runtime_error);
  EXPECT_EQ(log.back(), std::make_pair(4, std::string("DataCacheComponentExistenceTrackingBase: Could not read if "
                                                      "component exists for the entity \"101\" from the data stream")));
  EXPECT_TRUE(exists());
}

TEST_F(DataCacheTest, AnUpdateThatWasNeverAppliedHoldsUpNoLaterOne) {
  Tracking item(entity, qsf::MetadataComponent::COMPONENT_ID);
  qsf::game::BitStream lost = bits({true, true});
  item.read(lost, qsf::Clock({}, 1));
  take(item, 2, bits({true, false}));
  EXPECT_FALSE(exists());
}

/// Notes what it is asked.
struct Probe : DataCacheBase {
  using DataCacheBase::DataCacheBase;
  bool includeForPrepare() override { return included; }
  bool prepare() override {
    ++prepared;
    if (faulty) throw std::runtime_error("broken");
    return true;
  }
  void write(qsf::game::BitStream& stream) override { stream.write(std::uint8_t{7}); }
  void read(qsf::game::BitStream& stream, const qsf::Clock& clock) override {
    std::uint8_t value = 0;
    if (!stream.read(value)) throw std::runtime_error("short");
    readAt.push_back(clock.getSignalCounter());
  }
  void apply(const qsf::Clock& clock) override { appliedAt.push_back(clock.getSignalCounter()); }

  bool included = true;
  bool faulty = false;
  int prepared = 0;
  std::vector<std::uint32_t> readAt, appliedAt;
};

struct ProbeFactory : DataCacheItemFactory::Listener {
  ProbeFactory() { DataCacheItemFactory::addListener(*this); }
  ~ProbeFactory() override { DataCacheItemFactory::removeListener(*this); }
  void registerItemTypes(std::map<std::uint32_t, std::string>& types) override { types.emplace(9, "Probe"); }
  void createItems(qsf::Entity& entity, DataCacheItemFactory::Items& items) override {
    if (entity.getId() < 100) return;
    auto probe = std::make_unique<Probe>(entity.getId());
    probes.push_back(probe.get());
    items.emplace(9, std::move(probe));
  }
  std::vector<Probe*> probes;
};

TEST_F(DataCacheTest, TheFactoryAsksItsListenersUntilTheyGo) {
  {
    ProbeFactory factory;
    DataCacheItemFactory::addListener(factory);
    EXPECT_EQ(DataCacheItemFactory::getItemTypes().at(9), "Probe");
    EXPECT_EQ(DataCacheItemFactory::createItems(entity).size(), 1u);
    EXPECT_EQ(factory.probes.size(), 1u); // asked once, though added twice
  }
  EXPECT_TRUE(DataCacheItemFactory::createItems(entity).empty());
  EXPECT_FALSE(DataCacheItemFactory::getItemTypes().contains(9));
}

TEST_F(DataCacheTest, TheSettingSaysHowOftenAnUpdateIsDue) {
  em5::GameSettingsGroup& settings = *qsf::UniqueInstance<em5::GameSettingsGroup>();
  DataCacheSystem cache;
  const auto ticksInASecond = [&] {
    int ticks = 0;
    for (int frame = 0; frame < 20; ++frame)
      ticks += cache.advance(TICK) ? 1 : 0;
    return ticks;
  };
  EXPECT_EQ(ticksInASecond(), 10);
  for (const unsigned int rate : {5u, 20u, 10u}) {
    settings.setMultiplayUpdatesPerSecond(rate);
    cache.startGame();
    EXPECT_EQ(ticksInASecond(), static_cast<int>(rate));
  }
  settings.setMultiplayUpdatesPerSecond(7);
  EXPECT_EQ(settings.getMultiplayUpdatesPerSecond(), 10u);
  EXPECT_EQ(cache.getTick(), 10u + 5 + 20 + 10);
}

TEST_F(DataCacheTest, ALongFrameMakesOneUpdate) {
  DataCacheSystem cache;
  EXPECT_TRUE(cache.advance(qsf::Time::fromSeconds(5)));
  EXPECT_FALSE(cache.advance(TICK));
}

TEST_F(DataCacheTest, WhatTheHostWritesItsClientReadsAndAppliesAtTheUpdatesTick) {
  ProbeFactory factory;
  DataCacheSystem host, client;
  host.startGame();
  client.startGame();
  const DataCacheSystem::Update update = host.writeUpdate(Envelope::MOST_BYTES);
  ASSERT_EQ(update.items.size(), 1u);
  ASSERT_EQ(update.streams.size(), 1u);
  EXPECT_EQ(update.items[0].entity, 101u);
  EXPECT_EQ(update.items[0].bits, 8u);
  EXPECT_EQ(client.readUpdate(42, update.streams[0]).size(), 1u);
  EXPECT_EQ(factory.probes[1]->readAt, std::vector<std::uint32_t>{42});
  EXPECT_EQ(factory.probes[1]->appliedAt, std::vector<std::uint32_t>{42});
  client.stopGame();
  EXPECT_TRUE(client.readUpdate(43, update.streams[0]).empty());
}

TEST_F(DataCacheTest, AnItemThatIsLeftOutOrFaultyCostsTheOthersNothing) {
  ProbeFactory factory;
  for (const std::uint64_t id : {102, 103})
    session->getQsf().getMainMap().createEntity(id);
  DataCacheSystem cache;
  cache.startGame();
  ASSERT_EQ(factory.probes.size(), 3u);
  for (Probe* probe : factory.probes) {
    probe->included = probe->getEntityId() != 101;
    probe->faulty = probe->getEntityId() == 102;
  }
  const auto written = cache.writeUpdate(Envelope::MOST_BYTES).items;
  ASSERT_EQ(written.size(), 1u);
  EXPECT_EQ(written[0].entity, 103u);
  EXPECT_TRUE(logged(4, "the data cache item Probe of entity 102"));
}

TEST_F(DataCacheTest, AnUpdateBeyondAnEnvelopeGoesInSeveralOfOneTick) {
  ProbeFactory factory;
  for (const std::uint64_t id : {102, 103})
    session->getQsf().getMainMap().createEntity(id);
  DataCacheSystem host, client;
  host.startGame();
  client.startGame();
  const DataCacheSystem::Update update = host.writeUpdate(28); // an item counts 14 bytes, its head included
  EXPECT_EQ(update.items.size(), 3u);
  ASSERT_EQ(update.streams.size(), 2u);
  EXPECT_EQ(update.streams[0].getNumberOfBits(), 28u * 8);
  EXPECT_EQ(client.readUpdate(7, update.streams[0]).size(), 2u);
  EXPECT_EQ(client.readUpdate(7, update.streams[1]).size(), 1u);
}

TEST_F(DataCacheTest, AnItemThatFitsInNoEnvelopeIsLeftOut) {
  ProbeFactory factory;
  DataCacheSystem host;
  host.startGame();
  const DataCacheSystem::Update update = host.writeUpdate(13);
  EXPECT_TRUE(update.items.empty());
  EXPECT_TRUE(update.streams.empty());
  EXPECT_TRUE(logged(4, "the data cache item Probe of entity 101 is too long to be sent"));
}

TEST_F(DataCacheTest, AnUpdateIsReadUpToItsBreak) {
  ProbeFactory factory;
  DataCacheSystem cache;
  cache.startGame();
  const auto item = [](qsf::game::BitStream& stream, std::uint64_t id, std::uint32_t length) {
    stream.write(id);
    stream.write(std::uint8_t{9});
    stream.write(length);
  };
  qsf::game::BitStream update;
  item(update, 555, 3); // nobody knows it here
  update.write(std::uint8_t{0}, 3);
  item(update, 101, 4); // too short for its reader
  update.write(std::uint8_t{0}, 4);
  item(update, 101, 8);
  update.write(std::uint8_t{7});
  item(update, 101, 0xFFFFFFFF); // more than there is
  EXPECT_EQ(cache.readUpdate(1, update).size(), 1u);
  EXPECT_EQ(factory.probes[0]->appliedAt.size(), 1u);
  EXPECT_TRUE(logged(4, "the data cache item Probe of entity 101"));
}

}
