#include "qsf/physics/BulletCollisionComponent.h"

#include "qsf/map/EntityHelper.h"
#include "qsf/map/Map.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>
#include <stdexcept>

namespace qsf {

namespace {

/// Farther out the collision world's own arithmetic would break down.
constexpr float FARTHEST = 1e6f;

bool isNear(const glm::vec3& vector) {
  // Written so that no-numbers are not near.
  return std::abs(vector.x) <= FARTHEST && std::abs(vector.y) <= FARTHEST && std::abs(vector.z) <= FARTHEST;
}

}

BulletCollisionComponent::BulletCollisionComponent(Prototype* prototype) : Component(prototype) {
  mObject.setUserPointer(this);
  setSize(mSize);
}

BulletCollisionComponent::~BulletCollisionComponent() { leaveWorld(); }

static const DeclaredClass<BulletCollisionComponent> declared;

void BulletCollisionComponent::declareCamp() {
  using Own = BulletCollisionComponent;
  camp::Class::declare<Own>("qsf::BulletCollisionComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Size", &Own::getSize, &Own::setSize)
      .property("Offset", &Own::getOffset, &Own::setOffset)
      .property("CollisionGroup", &Own::getCollisionFilterGroup, &Own::setCollisionFilterGroup)
      .property("CollisionMask", &Own::getCollisionMask, &Own::setCollisionMask);
}

void BulletCollisionComponent::setCollisionFilterGroup(int group) {
  mGroup = group;
  reenterWorld();
}

void BulletCollisionComponent::setCollisionMask(int mask) {
  mMask = mask;
  reenterWorld();
}

void BulletCollisionComponent::setSize(const glm::vec3& size) {
  if (!(size.x > 0 && size.y > 0 && size.z > 0 && isNear(size)))
    throw std::out_of_range("a box's edges are above 0 and at most " + toText(static_cast<double>(FARTHEST)) +
                            ", not " + toText(size));
  leaveWorld();
  mSize = size;
  mShape = std::make_unique<btBoxShape>(btVector3(size.x / 2, size.y / 2, size.z / 2));
  mObject.setCollisionShape(mShape.get());
  enterWorld();
}

void BulletCollisionComponent::setOffset(const glm::vec3& offset) {
  mOffset = offset;
  onEntityMoved();
}

bool BulletCollisionComponent::updateTransform() {
  Entity* entity = findEntity();
  if (!entity) return false;
  const EntityHelper helper(*entity);
  const glm::quat rotation = helper.getRotation();
  const glm::vec3 middle = helper.getPosition() + rotation * mOffset;
  if (!isNear(middle)) return false;
  mObject.setWorldTransform(btTransform(btQuaternion(rotation.x, rotation.y, rotation.z, rotation.w),
                                        btVector3(middle.x, middle.y, middle.z)));
  return true;
}

void BulletCollisionComponent::onEntityMoved() {
  const bool isPlaced = updateTransform();
  if (mWorld && isPlaced)
    mWorld->getCollisionWorld().updateSingleAabb(&mObject);
  else if (isPlaced)
    enterWorld();
  else
    leaveWorld();
}

void BulletCollisionComponent::enterWorld() {
  if (mWorld || !isRunning() || !isActive() || !updateTransform()) return;
  const Entity* core = getEntity().getMap().getCoreEntity();
  mWorld = core ? core->getComponent<PhysicsWorldComponent>() : nullptr;
  if (mWorld) mWorld->getCollisionWorld().addCollisionObject(&mObject, mGroup, mMask);
}

void BulletCollisionComponent::leaveWorld() {
  if (mWorld) mWorld->getCollisionWorld().removeCollisionObject(&mObject);
  mWorld = nullptr;
}

void BulletCollisionComponent::reenterWorld() {
  leaveWorld();
  enterWorld();
}

bool BulletCollisionComponent::onStartup() {
  updateTransform(); // also of an inactive box, whose place others may ask for
  enterWorld();
  return true;
}

void BulletCollisionComponent::onShutdown() { leaveWorld(); }

void BulletCollisionComponent::onSetActive(bool active) {
  if (active)
    enterWorld();
  else
    leaveWorld();
}

}
