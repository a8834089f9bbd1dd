#include "game_plugin/multiplayer/SynchronizationItems.h"

#include "game_plugin/component/MultiplayerSynchronizationHelperComponent.h"
#include "game_plugin/component/MultiplayerSynchronizationMasterComponent.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/Reflection.h"

#include "qsf/Qsf.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/map/Map.h"

namespace script::multiplayer {

namespace {

using Master = MultiplayerSynchronizationMasterComponent;
using Helper = MultiplayerSynchronizationHelperComponent;

constexpr std::size_t MOST_BYTES = 255;

qsf::Entity* findEntity(std::uint64_t id) { return qsf::Qsf::instance()->getMainMap().getEntityById(id); }

[[noreturn]] void failRead() { qsf::ErrorHandling::reportAndThrow("DataCacheItem: could not read value from stream"); }

template <class Value> Value readValue(qsf::game::BitStream& stream) {
  Value value{};
  if (!stream.read(value)) failRead();
  return value;
}

void logBits(const char* what, std::uint64_t entityId, std::size_t bits) {
  logInfo(std::string("MultiplayerSynchroniationHelperComponentData: ") + what + " bitcount for entity \"" +
          std::to_string(entityId) + "\": " + std::to_string(bits));
}

}

MultiplayerSynchroniationHelperComponentData::MultiplayerSynchroniationHelperComponentData(qsf::Entity& entity)
    : DataCacheComponentExistenceTrackingBase(entity, Master::COMPONENT_ID) {
  const Master* master = entity.getComponent<Master>();
  if (!master) return;
  for (std::size_t i = 0; i < master->getSlaves().size(); ++i) {
    if (!findEntity(master->getSlaves()[i])) continue;
    SlaveItem& item = mItems.emplace_back();
    item.slaveId = master->getSlaves()[i];
    item.index = static_cast<std::uint8_t>(i);
  }
}

MultiplayerSynchronizationMasterComponent* MultiplayerSynchroniationHelperComponentData::getMaster() const {
  const qsf::Entity* entity = getEntity();
  return entity ? entity->getComponent<Master>() : nullptr;
}

bool MultiplayerSynchroniationHelperComponentData::prepare() {
  const bool existenceChanged = DataCacheComponentExistenceTrackingBase::prepare();
  if (!getMaster()) return existenceChanged;
  mChangedCount = 0;
  for (SlaveItem& item : mItems)
    if (!prepareItem(item)) return false;
  return mChangedCount > 0;
}

bool MultiplayerSynchroniationHelperComponentData::prepareItem(SlaveItem& item) {
  const qsf::Entity* slave = findEntity(item.slaveId);
  const Helper* helper = slave ? slave->getComponent<Helper>() : nullptr;
  if (!helper) {
    item.changed = false;
    return true;
  }
  const qsf::Entity* entity = findEntity(helper->getSynchronizedEntity());
  if (!entity) return false;
  qsf::Component* component = entity->getComponentById(helper->getSynchronizedComponentId());
  if (!component) return false;
  try {
    item.currentText = readAsText(*component, helper->getPropertyName());
  } catch (const std::exception&) {
    // A property that can't be read keeps the text that was read last.
  }
  item.stringChanged = item.currentText != item.lastText;
  item.lastText = item.currentText;
  item.entityChanged = helper->getSynchronizedEntity() != item.lastSynchronizedEntity;
  item.lastSynchronizedEntity = helper->getSynchronizedEntity();
  item.changed = item.stringChanged || item.entityChanged;
  if (item.changed) ++mChangedCount;
  return true;
}

void MultiplayerSynchroniationHelperComponentData::write(qsf::game::BitStream& stream) {
  const std::size_t before = stream.getNumberOfBits();
  DataCacheComponentExistenceTrackingBase::write(stream);
  if (doesComponentExist()) {
    stream.write(mChangedCount, 8);
    for (SlaveItem& item : mItems)
      if (item.changed) writeItem(item, stream);
  }
  logBits("Written", getEntityId(), stream.getNumberOfBits() - before);
}

void MultiplayerSynchroniationHelperComponentData::writeItem(SlaveItem& item, qsf::game::BitStream& stream) const {
  stream.write(item.index, 8);
  stream.write(item.entityChanged);
  if (item.entityChanged) stream.write(item.lastSynchronizedEntity, 64);
  stream.write(item.stringChanged);
  if (!item.stringChanged) return;
  if (item.lastText.size() > MOST_BYTES && !std::exchange(item.cutTold, true))
    logWarning("The property of the helper on entity " + std::to_string(item.slaveId) + " is longer than " +
               std::to_string(MOST_BYTES) + " bytes; the clients get its start");
  stream.write(item.lastText, 8);
}

void MultiplayerSynchroniationHelperComponentData::read(qsf::game::BitStream& stream, const qsf::Clock& clock) {
  const std::size_t before = stream.getRemainingBits();
  DataCacheComponentExistenceTrackingBase::read(stream, clock);
  Update update{clock.getSignalCounter(), {}};
  const unsigned int count = doesComponentExist() ? readValue<std::uint8_t>(stream) : 0;
  for (unsigned int i = 0; i < count; ++i) {
    SlaveItem item;
    item.changed = true;
    item.index = readValue<std::uint8_t>(stream);
    item.entityChanged = readValue<bool>(stream);
    if (item.entityChanged) item.lastSynchronizedEntity = readValue<std::uint64_t>(stream);
    item.stringChanged = readValue<bool>(stream);
    if (item.stringChanged && !stream.read(item.currentText, 8)) failRead();
    update.items.push_back(std::move(item));
  }
  // Whatever kept an earlier update from being applied doesn't hold up this one.
  std::erase_if(mHistory, [&](const Update& earlier) { return earlier.tick != update.tick; });
  mHistory.push_back(std::move(update));
  logBits("read", getEntityId(), before - stream.getRemainingBits());
}

void MultiplayerSynchroniationHelperComponentData::apply(const qsf::Clock& clock) {
  DataCacheComponentExistenceTrackingBase::apply(clock);
  while (!mHistory.empty() && mHistory.front().tick == clock.getSignalCounter()) {
    const Update update = std::move(mHistory.front());
    mHistory.pop_front();
    for (const SlaveItem& item : update.items)
      if (const Master* master = getMaster()) applyItem(item, *master);
  }
}

void MultiplayerSynchroniationHelperComponentData::applyItem(const SlaveItem& item, const Master& master) const {
  if (item.index >= master.getSlaves().size()) {
    logInfo("script::MultiplayerSynchronizationMasterComponent: Master noticed that the slave id is not used");
    return;
  }
  const qsf::Entity* slave = findEntity(master.getSlaves()[item.index]);
  if (!slave) {
    logInfo("script::MultiplayerSynchronizationMasterComponent: Slave is a nullptr");
    return;
  }
  Helper* helper = slave->getComponent<Helper>();
  if (!helper) return;
  if (item.stringChanged) helper->setCurrentValue(item.currentText);
  if (item.entityChanged) helper->setSynchronizedEntity(item.lastSynchronizedEntity);
  helper->writeProperty();
}

void DataCacheItemFactoryListenerMultiplayerSchronizationHelperComponent::registerItemTypes(
    std::map<std::uint32_t, std::string>& types) {
  types.emplace(TYPE, "Scripts_MP_Synchronizer_Single_Channel");
}

void DataCacheItemFactoryListenerMultiplayerSchronizationHelperComponent::createItems(
    qsf::Entity& entity, em5::multiplayer::DataCacheItemFactory::Items& items) {
  if (entity.getComponent<Master>())
    items.emplace(TYPE, std::make_unique<MultiplayerSynchroniationHelperComponentData>(entity));
}

}
