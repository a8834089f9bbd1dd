#include "qsf/map/Map.h"

#include "qsf/Qsf.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/job/JobManagers.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/MapInternals.h"
#include "qsf/map/MapReader.h"
#include "qsf/prototype/PrototypeManager.h"

namespace qsf {

namespace {

const RecordedOperation setSimulatingModeCall{"qsf::Map::setSimulatingMode", "`0` or `1`"};

void startComponents(Entity& entity) {
  // A copy, since a component that starts may make others.
  const std::vector<Component*> components = entity.getComponents();
  for (Component* component : components)
    component->startup();
}

void shutDownComponents(Entity& entity) {
  const std::vector<Component*> components = entity.getComponents();
  for (auto component = components.rbegin(); component != components.rend(); ++component)
    (*component)->shutdown();
}

}

Map::Map() : mInternals(std::make_unique<Internals>()) {}

Map::~Map() { clear(); }

Entity* Map::getEntityById(std::uint64_t id) const {
  const auto found = mEntitiesById.find(id);
  return found == mEntitiesById.end() ? nullptr : found->second;
}

Entity* Map::makeEntity(std::uint64_t id) {
  // Ids from the next one on were never used, so that the search is left to those that a map or a script names.
  if (id == UNINITIALIZED_ID || (id < mNextId && isIdTaken(id))) return nullptr;
  if (id >= mNextId) mNextId = id + 1;
  auto entity = std::make_unique<Entity>(*this, id);
  Entity& made = *entity;
  made.mOnMap = true;
  mEntitiesById[id] = &made;
  mEntities.emplace(id, std::move(entity));
  return &made;
}

std::uint64_t Map::findFreeId() const {
  std::uint64_t id = mNextId;
  if (id == UNINITIALIZED_ID) // the highest id is in use, so a gap has to serve
    for (id = 2; isIdTaken(id);)
      ++id;
  return id;
}

void Map::tellSpawn(Entity* entity) const {
  if (entity && mStarted && mSpawnListener) mSpawnListener(*entity);
}

Entity* Map::createEntity(std::uint64_t id) {
  Entity* entity = makeEntity(id);
  tellSpawn(entity);
  return entity;
}

Entity* Map::createEntity() { return createEntity(findFreeId()); }

std::uint64_t Map::reserveEntityId() {
  const std::uint64_t id = findFreeId();
  if (id >= mNextId) mNextId = id + 1;
  return id;
}

bool Map::isIdTaken(std::uint64_t id) const {
  if (mEntitiesById.contains(id)) return true;
  for (const auto& layer : mInternals->layers)
    for (const Layer::Resting& resting : layer->mResting)
      if (resting.entity->getId() == id) return true;
  return false;
}

std::unique_ptr<Entity> Map::takeOffMap(std::uint64_t id) {
  const auto found = mEntities.find(id);
  if (found == mEntities.end()) return nullptr;
  std::unique_ptr<Entity> entity = std::move(found->second);
  mEntities.erase(found);
  mEntitiesById.erase(id);
  const std::vector<Component*> components = entity->getComponents();
  for (Component* component : components)
    mInternals->removeComponent(*component);
  entity->mOnMap = false; // before the shutdown, which may make components that nobody is to find any more
  shutDownComponents(*entity);
  return entity;
}

void Map::putOnMap(std::unique_ptr<Entity> entity) {
  Entity& placed = *entity;
  placed.mOnMap = true;
  mEntitiesById[placed.getId()] = &placed;
  mEntities.emplace(placed.getId(), std::move(entity));
  for (Component* component : placed.getComponents())
    mInternals->addComponent(*component);
}

void Map::destroyObjectById(std::uint64_t id) {
  if (std::unique_ptr<Entity> entity = takeOffMap(id)) mDestroyed.push_back(std::move(entity));
}

std::vector<Entity*> Map::getEntities() const {
  std::vector<Entity*> entities;
  entities.reserve(mEntities.size());
  for (const auto& [id, entity] : mEntities)
    entities.push_back(entity.get());
  return entities;
}

Entity* Map::createObjectFromPrefab(const Prefab& prefab, std::uint64_t id) {
  Entity* entity = makeEntity(id == UNINITIALIZED_ID ? findFreeId() : id);
  if (!entity) return nullptr;
  entity->getOrCreateComponentById(TransformComponent::COMPONENT_ID, false);
  auto* metadata =
      static_cast<MetadataComponent*>(entity->getOrCreateComponentById(MetadataComponent::COMPONENT_ID, false));
  prefab.copyComponentsTo(*entity);
  metadata->setBasePrefab(StringHash(prefab.getLocalAssetName()));
  if (mStarted) startComponents(*entity);
  tellSpawn(entity);
  return entity;
}

Entity* Map::createObjectByLocalPrefabAssetId(StringHash localPrefabAssetId, std::uint64_t id) {
  const Qsf* host = Qsf::instance();
  try {
    const Prefab* prefab = host ? host->getMainPrototypeManager().getPrefabByLocalAssetId(localPrefabAssetId) : nullptr;
    return prefab ? createObjectFromPrefab(*prefab, id) : nullptr;
  } catch (const std::exception& fault) { // a faulty file, which is no reason to lose the game
    logMessage(LogSystem::ERROR, fault.what());
    return nullptr;
  }
}

const std::vector<Component*>& Map::getComponentInstances(StringHash componentId) const {
  return mInternals->components.get(componentId);
}

bool Map::isSimulating() const {
  const Qsf* host = Qsf::instance();
  return mStarted && host && !host->getJobManagers().isPaused() && !host->getJobManagers().isSimulationHeld();
}

void Map::setSimulatingMode(bool simulating) {
  setSimulatingModeCall.record({simulating ? "1" : "0"});
  if (const Qsf* host = Qsf::instance()) host->getJobManagers().setSimulationHeld(!simulating);
}

float Map::getGroundHeight(float x, float /*z*/) const { return mInternals->ground.getHeight(x); }

void Map::load(const std::string& localAssetName) {
  clear();
  try {
    MapReader(*this).read(localAssetName);
  } catch (...) {
    clear();
    throw;
  }
  mLocalAssetName = localAssetName;
  mGlobalAssetId = StringHash(localAssetName).getHash();
}

void Map::startup() {
  if (mStarted) return;
  mStarted = true;
  std::vector<std::uint64_t> ids; // an entity that starts may destroy others
  for (const auto& [id, entity] : mEntities)
    ids.push_back(id);
  for (const std::uint64_t id : ids)
    if (Entity* entity = getEntityById(id)) startComponents(*entity);
}

void Map::clear() {
  for (Entity* entity : getEntities())
    if (getEntityById(entity->getId()) == entity) shutDownComponents(*entity);
  mStarted = false;
  mInternals->reset();
  mEntitiesById.clear();
  for (auto& [id, entity] : mEntities)
    entity->mOnMap = false;
  mEntities.clear();
  collectGarbage();
  mLocalAssetName.clear();
  mGlobalAssetId = UNINITIALIZED_STRING_HASH;
  mBounds = {-1000, -1000, 1000, 1000};
  mNextId = 2;
  if (const Qsf* host = Qsf::instance()) host->getJobManagers().setSimulationHeld(false);
}

void Map::keepUntilFrameEnd(std::shared_ptr<void> removed) { mInternals->kept.push_back(std::move(removed)); }

void Map::collectGarbage() {
  // Destructors may take off more.
  while (!mDestroyed.empty() || !mInternals->destroyedComponents.empty() || !mInternals->kept.empty()) {
    const auto entities = std::exchange(mDestroyed, {});
    const auto components = std::exchange(mInternals->destroyedComponents, {});
    const auto kept = std::exchange(mInternals->kept, {}); // goes first: it may belong to one of the others
  }
}

}
