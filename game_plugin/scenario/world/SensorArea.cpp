#include "game_plugin/scenario/world/SensorArea.h"

#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/CollisionHelper.h"
#include "qsf/physics/PhysicsWorldComponent.h"

namespace script {

bool canSense() {
  const qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  return core && core->getComponent<qsf::PhysicsWorldComponent>();
}

const std::vector<qsf::Entity*>& findEntitiesInAreas(std::span<const std::uint64_t> areas) {
  static std::vector<qsf::Entity*> found; // keeps its memory: sensors are asked in each tick
  found.clear();
  const qsf::CollisionHelper helper(qsf::getMainMap());
  for (const std::uint64_t id : areas) {
    const qsf::Entity* area = findEntity(id);
    auto* collision = area ? area->getComponent<qsf::BulletCollisionComponent>() : nullptr;
    if (!collision) continue;
    // A copy, as an object of the world never meets itself, but an area may.
    const btCollisionObject object = *collision->getWrappedBulletCollisionObject();
    helper.getCollisionsAt(object, found, collision->getCollisionFilterGroup(), collision->getCollisionMask());
  }
  return found;
}

}
