#include "em5/multiplayer/DataCache.h"

#include "qsf/Qsf.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/map/Entity.h"
#include "qsf/map/Map.h"

#include <stdexcept>

namespace em5::multiplayer {

namespace {

std::vector<DataCacheItemFactory::Listener*>& listeners() {
  static std::vector<DataCacheItemFactory::Listener*> all;
  return all;
}

[[noreturn]] void failRead(const std::string& what, std::uint64_t entityId) {
  const std::string text = "DataCacheComponentExistenceTrackingBase: Could not read " + what + " for the entity \"" +
                           std::to_string(entityId) + "\" from the data stream";
  qsf::ErrorHandling::printToLog(text, 1);
  throw qsf::ReportedError(text);
}

}

qsf::Entity* DataCacheBase::getEntity() const {
  const qsf::Qsf* host = qsf::Qsf::instance();
  return host ? host->getMainMap().getEntityById(mEntityId) : nullptr;
}

DataCacheComponentExistenceTrackingBase::DataCacheComponentExistenceTrackingBase(qsf::Entity& entity,
                                                                                 qsf::StringHash componentId)
    : DataCacheBase(entity.getId()), mComponentId(componentId), mChangesCount(entity.getComponentChangesCount()) {}

bool DataCacheComponentExistenceTrackingBase::prepare() {
  mChanged = false;
  const qsf::Entity* entity = getEntity();
  if (!entity || entity->getComponentChangesCount() == mChangesCount) return false;
  mChangesCount = entity->getComponentChangesCount();
  const bool exists = entity->getComponentById(mComponentId) != nullptr;
  mChanged = exists != mExists;
  mExists = exists;
  return mChanged;
}

void DataCacheComponentExistenceTrackingBase::write(qsf::game::BitStream& stream) {
  stream.write(mChanged);
  stream.write(mExists);
}

void DataCacheComponentExistenceTrackingBase::read(qsf::game::BitStream& stream, const qsf::Clock& clock) {
  bool changed = false;
  if (!stream.read(changed)) failRead("the component existence state", getEntityId());
  if (!stream.read(mExists)) failRead("if component exists", getEntityId());
  // Each update is applied as soon as it is read: what is left of another tick belonged to one that broke off.
  std::erase_if(mHistory, [&](const Change& change) { return change.tick != clock.getSignalCounter(); });
  if (changed) mHistory.push_back({clock.getSignalCounter(), mExists});
}

void DataCacheComponentExistenceTrackingBase::apply(const qsf::Clock& clock) {
  while (!mHistory.empty() && mHistory.front().tick == clock.getSignalCounter()) {
    const bool exists = mHistory.front().exists;
    mHistory.pop_front();
    qsf::Entity* entity = getEntity();
    if (!entity) continue;
    if (exists)
      entity->getOrCreateComponentById(mComponentId);
    else
      entity->destroyComponentById(mComponentId);
  }
}

void DataCacheItemFactory::addListener(Listener& listener) {
  if (std::find(listeners().begin(), listeners().end(), &listener) == listeners().end())
    listeners().push_back(&listener);
}

void DataCacheItemFactory::removeListener(Listener& listener) { std::erase(listeners(), &listener); }

DataCacheItemFactory::Items DataCacheItemFactory::createItems(qsf::Entity& entity) {
  Items items;
  for (Listener* listener : listeners())
    listener->createItems(entity, items);
  return items;
}

std::map<std::uint32_t, std::string> DataCacheItemFactory::getItemTypes() {
  std::map<std::uint32_t, std::string> types;
  for (Listener* listener : listeners())
    listener->registerItemTypes(types);
  return types;
}

}
