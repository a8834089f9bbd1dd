#include "qsf/physics/CollisionHelper.h"

#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"

#include <btBulletCollisionCommon.h>

namespace qsf {

namespace {

/// Collects the owners of what an object touches.
struct TouchCollector : btCollisionWorld::ContactResultCallback {
  const btCollisionObject* asked;
  std::vector<Entity*> found;

  btScalar addSingleResult(btManifoldPoint& point, const btCollisionObjectWrapper* first, int, int,
                           const btCollisionObjectWrapper* second, int, int) override {
    constexpr btScalar TOUCH = btScalar(1e-4); // the library tells near misses, too
    const btCollisionObject* other =
        first->getCollisionObject() == asked ? second->getCollisionObject() : first->getCollisionObject();
    if (point.getDistance() <= TOUCH)
      if (const auto* component = static_cast<const BulletCollisionComponent*>(other->getUserPointer()))
        found.push_back(&component->getEntity());
    return 0;
  }
};

}

void CollisionHelper::getCollisionsAt(const btCollisionObject& object, std::vector<Entity*>& entities, int group,
                                      int mask) const {
  const Entity* core = mMap.getCoreEntity();
  const auto* world = core ? core->getComponent<PhysicsWorldComponent>() : nullptr;
  if (!world || !object.getCollisionShape()) return;
  TouchCollector collector;
  collector.asked = &object;
  collector.m_collisionFilterGroup = group;
  collector.m_collisionFilterMask = mask;
  // The library asks for an object that it may change, but only reads it.
  world->getCollisionWorld().contactTest(const_cast<btCollisionObject*>(&object), collector);
  std::sort(collector.found.begin(), collector.found.end(),
            [](const Entity* left, const Entity* right) { return left->getId() < right->getId(); });
  collector.found.erase(std::unique(collector.found.begin(), collector.found.end()), collector.found.end());
  entities.insert(entities.end(), collector.found.begin(), collector.found.end());
}

}
