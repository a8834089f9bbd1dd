#pragma once
#include "qsf/component/Component.h"
#include "qsf/physics/CollisionGroup.h"

#include <btBulletCollisionCommon.h>
#include <glm/glm.hpp>

#include <memory>

namespace qsf {

class PhysicsWorldComponent;

/// A box that an entity collides with. It is in the map's physics world while the component runs and is active, and
/// follows the entity. Properties "Size" (edge lengths), "Offset" (of the box's middle from the entity, turned with
/// it), "CollisionGroup" and "CollisionMask" (see CollisionGroup).
class QSF_API BulletCollisionComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::BulletCollisionComponent"};
  explicit BulletCollisionComponent(Prototype* prototype);
  ~BulletCollisionComponent() override;
  static void declareCamp();

  /// Always there; its user pointer is this component.
  btCollisionObject* getWrappedBulletCollisionObject() { return &mObject; }
  int getCollisionFilterGroup() const { return mGroup; }
  int getCollisionMask() const { return mMask; }
  void setCollisionFilterGroup(int group);
  void setCollisionMask(int mask);

  const glm::vec3& getSize() const { return mSize; }
  /// An edge that isn't above 0 and finite throws std::out_of_range.
  void setSize(const glm::vec3& size);
  const glm::vec3& getOffset() const { return mOffset; }
  void setOffset(const glm::vec3& offset);

  /// Called when the entity was placed.
  void onEntityMoved();
  /// Called by the physics world when it comes or goes.
  void enterWorld();
  void forgetWorld() { mWorld = nullptr; }

protected:
  bool onStartup() override;
  void onShutdown() override;
  void onSetActive(bool active) override;

private:
  void leaveWorld();
  void reenterWorld();
  bool updateTransform();

  glm::vec3 mSize{1, 1, 1};
  glm::vec3 mOffset{0, 0, 0};
  int mGroup = COLLISION_OBJECT;
  int mMask = COLLISION_ALL;
  std::unique_ptr<btCollisionShape> mShape;
  btCollisionObject mObject;
  PhysicsWorldComponent* mWorld = nullptr;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::BulletCollisionComponent)
