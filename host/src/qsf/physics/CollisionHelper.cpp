#include "qsf/physics/CollisionHelper.h"

#include "qsf/physics/BoxTouch.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"

#include <btBulletCollisionCommon.h>

#include <algorithm>

namespace qsf {

namespace {

constexpr btScalar TOUCH = btScalar(1e-4); ///< closer than this touches

const btBoxShape* boxOf(const btCollisionObject& object) {
  const btCollisionShape* shape = object.getCollisionShape();
  return shape->getShapeType() == BOX_SHAPE_PROXYTYPE ? static_cast<const btBoxShape*>(shape) : nullptr;
}

/// For shapes that aren't boxes: the library's question, which tells near misses, too.
bool touchesByLibrary(btCollisionWorld& world, const btCollisionObject& first, const btCollisionObject& second) {
  struct Nearest : btCollisionWorld::ContactResultCallback {
    bool touches = false;
    btScalar addSingleResult(btManifoldPoint& point, const btCollisionObjectWrapper*, int, int,
                             const btCollisionObjectWrapper*, int, int) override {
      touches = touches || point.getDistance() <= TOUCH;
      return 0;
    }
  } nearest;
  // The library asks for objects that it may change, but only reads them.
  world.contactPairTest(const_cast<btCollisionObject*>(&first), const_cast<btCollisionObject*>(&second), nearest);
  return nearest.touches;
}

/// Collects the owners of what an object touches among the objects near it.
struct TouchCollector : btBroadphaseAabbCallback {
  btCollisionWorld& world;
  const btCollisionObject& asked;
  const int group;
  const int mask;
  std::vector<Entity*>& found;

  TouchCollector(btCollisionWorld& itsWorld, const btCollisionObject& object, int itsGroup, int itsMask,
                 std::vector<Entity*>& entities)
      : world(itsWorld), asked(object), group(itsGroup), mask(itsMask), found(entities) {}

  bool process(const btBroadphaseProxy* proxy) override {
    const auto& other = *static_cast<const btCollisionObject*>(proxy->m_clientObject);
    const auto* component = static_cast<const BulletCollisionComponent*>(other.getUserPointer());
    const bool meets = (proxy->m_collisionFilterGroup & mask) != 0 && (proxy->m_collisionFilterMask & group) != 0;
    if (meets && component && &other != &asked && touches(other)) found.push_back(&component->getEntity());
    return true; // further
  }

  bool touches(const btCollisionObject& other) const {
    const btBoxShape* askedBox = boxOf(asked);
    const btBoxShape* box = boxOf(other);
    return askedBox && box ? boxesTouch(*askedBox, asked.getWorldTransform(), *box, other.getWorldTransform(), TOUCH)
                           : touchesByLibrary(world, asked, other);
  }
};

}

void CollisionHelper::getCollisionsAt(const btCollisionObject& object, std::vector<Entity*>& entities, int group,
                                      int mask) const {
  const Entity* core = mMap.getCoreEntity();
  const auto* physics = core ? core->getComponent<PhysicsWorldComponent>() : nullptr;
  if (!physics || !object.getCollisionShape()) return;
  btCollisionWorld& world = physics->getCollisionWorld();
  btVector3 minimum, maximum;
  object.getCollisionShape()->getAabb(object.getWorldTransform(), minimum, maximum);
  const auto first = static_cast<std::ptrdiff_t>(entities.size());
  TouchCollector collector(world, object, group, mask, entities);
  world.getBroadphase()->aabbTest(minimum, maximum, collector);
  std::sort(entities.begin() + first, entities.end(),
            [](const Entity* left, const Entity* right) { return left->getId() < right->getId(); });
}

}
