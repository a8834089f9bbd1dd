#include "game_plugin/multiplayer/SynchronizationItems.h"

#include "game_plugin/ModuleFixture.h"
#include "game_plugin/component/MultiplayerSynchronizationHelperComponent.h"
#include "game_plugin/component/MultiplayerSynchronizationMasterComponent.h"

#include "qsf/component/MetadataComponent.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/map/Entity.h"

#include <camp/arrayproperty.hpp>
#include <camp/userobject.hpp>

namespace {

using Data = script::multiplayer::MultiplayerSynchroniationHelperComponentData;
using Helper = script::MultiplayerSynchronizationHelperComponent;
using Master = script::MultiplayerSynchronizationMasterComponent;

/// Entity 103 is the master of the helpers on 110, 111, ..., which keep the descriptions of 210, 211, ... alike.
class SynchronizationItemsTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    start();
  }
  static qsf::Map& map() { return qsf::Qsf::instance()->getMainMap(); }
  static void set(qsf::Entity& entity, qsf::StringHash component, const char* property, const std::string& value) {
    entity.getOrCreateComponentById(component)->setPropertyByString(property, value);
  }
  qsf::Entity& makeMaster(unsigned int helpers) {
    std::vector<std::uint64_t> slaves;
    for (unsigned int i = 0; i < helpers; ++i) {
      const std::string target = std::to_string(210 + i);
      map().createEntity(210 + i)->getOrCreateComponent<qsf::MetadataComponent>();
      qsf::Entity& helper = *map().createEntity(110 + i);
      helper.getOrCreateComponent<Helper>();
      set(helper, Helper::COMPONENT_ID, "Component Name", "qsf::MetadataComponent");
      set(helper, Helper::COMPONENT_ID, "Property Name", "Description");
      set(helper, Helper::COMPONENT_ID, "Synchronized Entity", target);
      helper.getComponent<Helper>()->shutdown();
      helper.getComponent<Helper>()->startup(); // as a map's component does, with its properties read
      slaves.push_back(110 + i);
    }
    qsf::Entity& master = *map().createEntity(103);
    const camp::UserObject component(*master.getOrCreateComponent<Master>());
    const auto& slot = dynamic_cast<const camp::ArrayProperty&>(component.getClass().property("[MP] Slave Slot"));
    for (std::size_t i = 0; i < slaves.size(); ++i)
      slot.insert(component, i, camp::Value(static_cast<std::int64_t>(slaves[i])));
    return master;
  }
  static void describe(std::uint64_t id, const std::string& text) {
    set(*map().getEntityById(id), qsf::MetadataComponent::COMPONENT_ID, "Description", text);
  }
  static std::string description(std::uint64_t id) {
    return map().getEntityById(id)->getComponent<qsf::MetadataComponent>()->getDescription();
  }
  static qsf::game::BitStream write(Data& data) {
    qsf::game::BitStream stream;
    data.write(stream);
    return stream;
  }
  static void take(Data& data, std::uint32_t tick, qsf::game::BitStream stream) {
    const qsf::Clock clock({}, tick);
    data.read(stream, clock);
    data.apply(clock);
  }
  /// The first bits of a stream.
  static qsf::game::BitStream cut(const qsf::game::BitStream& whole, std::size_t bits) {
    return {whole.getBytes(), bits};
  }
};

TEST_F(SynchronizationItemsTest, TheTypeHasItsNumberAndName) {
  EXPECT_EQ(em5::multiplayer::DataCacheItemFactory::getItemTypes().at(47), "Scripts_MP_Synchronizer_Single_Channel");
  qsf::Entity& master = makeMaster(1);
  EXPECT_TRUE(em5::multiplayer::DataCacheItemFactory::createItems(master).contains(47));
  EXPECT_FALSE(em5::multiplayer::DataCacheItemFactory::createItems(*map().getEntityById(110)).contains(47));
}

TEST_F(SynchronizationItemsTest, TheFieldsStandInTheirOrder) {
  Data data(makeMaster(1));
  describe(210, "ab");
  ASSERT_TRUE(data.prepare());
  qsf::game::BitStream stream = write(data);
  EXPECT_EQ(stream.getNumberOfBits(), 2u + 8 + 8 + 1 + 64 + 1 + 8 + 16);
  bool changed = true, exists = false, entityChanged = false, textChanged = false;
  std::uint8_t count = 0, index = 9;
  std::uint64_t entity = 0;
  std::string text;
  EXPECT_TRUE(stream.read(changed) && stream.read(exists) && stream.read(count) && stream.read(index));
  EXPECT_TRUE(stream.read(entityChanged) && stream.read(entity) && stream.read(textChanged) && stream.read(text, 8));
  EXPECT_FALSE(changed);
  EXPECT_TRUE(exists && entityChanged && textChanged);
  EXPECT_EQ(count, 1u);
  EXPECT_EQ(index, 0u);
  EXPECT_EQ(entity, 210u);
  EXPECT_EQ(text, "ab");
  EXPECT_FALSE(data.prepare()); // nothing has changed since
  EXPECT_EQ(write(data).getNumberOfBits(), 10u);
}

TEST_F(SynchronizationItemsTest, AStreamThatBreaksOffAnywhereIsToldAndChangesNothing) {
  qsf::Entity& master = makeMaster(2);
  Data host(master), client(master);
  describe(210, "ab");
  describe(211, "cd");
  ASSERT_TRUE(host.prepare());
  const qsf::game::BitStream whole = write(host);
  describe(210, "mine");
  describe(211, "mine");
  for (std::uint32_t bits = 0; bits < whole.getNumberOfBits(); ++bits) {
    log.clear();
    EXPECT_THROW(take(client, bits + 1, cut(whole, bits)), qsf::ReportedError) << bits;
    ASSERT_FALSE(log.empty()) << bits;
    EXPECT_EQ(log.back().first, 4);
    if (bits >= 2) EXPECT_EQ(log.back().second, "DataCacheItem: could not read value from stream") << bits;
  }
  EXPECT_EQ(description(210), "mine");
  EXPECT_EQ(description(211), "mine");
  take(client, 1000, whole); // and the broken ones hold up nothing
  EXPECT_EQ(description(210), "ab");
  EXPECT_EQ(description(211), "cd");
}

TEST_F(SynchronizationItemsTest, AnUpdateIsAppliedAtItsOwnTickOnly) {
  qsf::Entity& master = makeMaster(1);
  Data host(master), client(master);
  describe(210, "new");
  ASSERT_TRUE(host.prepare());
  qsf::game::BitStream stream = write(host);
  describe(210, "old");
  client.read(stream, qsf::Clock({}, 5));
  client.apply(qsf::Clock({}, 4));
  EXPECT_EQ(description(210), "old");
  client.apply(qsf::Clock({}, 5));
  EXPECT_EQ(description(210), "new");
}

TEST_F(SynchronizationItemsTest, AMissingHelpersIndexStaysAGap) {
  qsf::Entity& master = makeMaster(2);
  map().destroyObjectById(110);
  Data data(master);
  describe(211, "x");
  ASSERT_TRUE(data.prepare());
  qsf::game::BitStream stream = write(data);
  std::uint8_t count = 0, index = 0;
  bool skipped = false;
  EXPECT_TRUE(stream.read(skipped) && stream.read(skipped) && stream.read(count) && stream.read(index));
  EXPECT_EQ(count, 1u);
  EXPECT_EQ(index, 1u);
}

}
