#include "qsf/physics/PhysicsWorldComponent.h"

#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/TreeBroadphase.h"
#include "qsf/reflection/ClassRegistry.h"

#include <btBulletCollisionCommon.h>

namespace qsf {

struct PhysicsWorldComponent::World {
  btDefaultCollisionConfiguration configuration;
  btCollisionDispatcher dispatcher{&configuration};
  TreeBroadphase broadphase;
  btCollisionWorld world{&dispatcher, &broadphase, &configuration};
};

PhysicsWorldComponent::PhysicsWorldComponent(Prototype* prototype)
    : Component(prototype), mWorld(std::make_unique<World>()) {
  // Boxes are put in place when their entities move; nothing moves by itself.
  mWorld->world.setForceUpdateAllAabbs(false);
}

PhysicsWorldComponent::~PhysicsWorldComponent() {
  btCollisionWorld& world = mWorld->world;
  while (world.getNumCollisionObjects() > 0) {
    btCollisionObject* object = world.getCollisionObjectArray()[world.getNumCollisionObjects() - 1];
    static_cast<BulletCollisionComponent*>(object->getUserPointer())->forgetWorld();
    world.removeCollisionObject(object);
  }
}

static const DeclaredClass<PhysicsWorldComponent> declared;

void PhysicsWorldComponent::declareCamp() {
  camp::Class::declare<PhysicsWorldComponent>("qsf::PhysicsWorldComponent")
      .base<Component>()
      .constructor1<Prototype*>();
}

btCollisionWorld& PhysicsWorldComponent::getCollisionWorld() const { return mWorld->world; }

bool PhysicsWorldComponent::onStartup() {
  for (Component* component : getEntity().getMap().getComponentInstances(BulletCollisionComponent::COMPONENT_ID))
    static_cast<BulletCollisionComponent*>(component)->enterWorld();
  return true;
}

}
