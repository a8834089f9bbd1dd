#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"
#include "qsf/map/Entity.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace qsf {

class Prefab;

/// The world: entities by id, their components by class, and the bounds and ground that the map's file tells. Iteration
/// goes by ascending id, so every walk is deterministic. New entities get the id after the highest ever used on this
/// map.
class QSF_API Map {
public:
  static constexpr std::uint64_t CORE_ENTITY_ID = 0;
  static constexpr std::uint64_t CAMERA_ENTITY_ID = 1;

  Map();
  ~Map();
  Map(const Map&) = delete;
  Map& operator=(const Map&) = delete;

  /// Hash of the map asset's local name; uninitialised while no map is loaded.
  std::uint32_t getGlobalAssetId() const { return mGlobalAssetId; }
  const std::string& getLocalAssetName() const { return mLocalAssetName; }

  /// Null if there is none, also for entities that wait for their destruction.
  Entity* getEntityById(std::uint64_t id) const;
  Entity* getCoreEntity() const { return getEntityById(CORE_ENTITY_ID); }
  /// Null if the id is taken.
  Entity* createEntity(std::uint64_t id);
  Entity* createEntity();
  /// An id that no entity of this map has had; none will get it but one that is created with it. For those who need the
  /// id before the entity.
  std::uint64_t reserveEntityId();
  /// The entity is gone for every look-up at once; its memory is released at the end of the frame, so the caller may be
  /// one of its own components. Unlinks parent and children. An unknown id does nothing.
  void destroyObjectById(std::uint64_t id);
  /// Called for each entity that comes to be while the map is started, when it is complete; one without a prefab as yet
  /// without components.
  void setSpawnListener(std::function<void(Entity&)> listener) { mSpawnListener = std::move(listener); }
  /// All living entities by ascending id.
  std::vector<Entity*> getEntities() const;
  std::size_t getNumberOfEntities() const { return mEntities.size(); }

  /// A new entity with copies of the prefab's components; null if there is no such prefab.
  /// A faulty prefab file is logged at severity 4 and gives null, too.
  Entity* createObjectByLocalPrefabAssetId(StringHash localPrefabAssetId, std::uint64_t id = UNINITIALIZED_ID);
  /// The same from a prefab at hand; null if the id is taken.
  Entity* createObjectFromPrefab(const Prefab& prefab, std::uint64_t id = UNINITIALIZED_ID);

  /// Living components of exactly that class, by ascending entity id. The reference holds until a component of that
  /// class is made or destroyed.
  const std::vector<Component*>& getComponentInstances(StringHash componentId) const;

  /// True between startup and shutdown of a game while it isn't paused and its simulation isn't held.
  bool isSimulating() const;
  /// False holds the simulation, apart from a pause of the player's: its job managers rest from the next frame on, all
  /// others go on. It lasts until the map is cleared. Leaves a trace in the call recorder.
  void setSimulatingMode(bool simulating);
  /// Height of the ground at a place.
  float getGroundHeight(float x, float z) const;
  struct Bounds {
    float minimumX, minimumZ, maximumX, maximumZ;
  };
  const Bounds& getBounds() const { return mBounds; }

  /// Reads the map's file (see docs/host.md) into this empty map. Throws qsf::LoadError; the map is then empty again.
  void load(const std::string& localAssetName);
  /// Starts all components; called by the game and the editor once the map is complete.
  void startup();
  bool isStarted() const { return mStarted; }
  /// Destroys everything.
  void clear();
  /// Takes over what somebody has removed while it may still be at work, and frees it at the end of the frame.
  void keepUntilFrameEnd(std::shared_ptr<void> removed);
  /// Frees what was taken off the map and what it keeps; the host calls it between frames.
  void collectGarbage();

  struct Internals;
  Internals& getInternals() const { return *mInternals; }

private:
  friend class Entity;
  friend class LayerManager;
  friend class MapReader;
  bool isIdTaken(std::uint64_t id) const;
  Entity* makeEntity(std::uint64_t id);
  std::uint64_t findFreeId() const;
  void tellSpawn(Entity* entity) const;
  /// Shut down, unlinked and out of every index; null if there is no such entity.
  std::unique_ptr<Entity> takeOffMap(std::uint64_t id);
  void putOnMap(std::unique_ptr<Entity> entity);

  std::unique_ptr<Internals> mInternals;
  std::map<std::uint64_t, std::unique_ptr<Entity>> mEntities;
  std::unordered_map<std::uint64_t, Entity*> mEntitiesById;
  std::vector<std::unique_ptr<Entity>> mDestroyed;
  std::string mLocalAssetName;
  Bounds mBounds{-1000, -1000, 1000, 1000};
  std::function<void(Entity&)> mSpawnListener;
  std::uint64_t mNextId = 2;
  std::uint32_t mGlobalAssetId = UNINITIALIZED_STRING_HASH;
  bool mStarted = false;
};

}
