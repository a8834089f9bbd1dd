#include "qsf/component/HostComponents.h"

#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/component/CameraComponent.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MapPartComponents.h"
#include "qsf/component/MeshAnimationComponent.h"
#include "qsf/component/MeshComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/BoneToBoneLinkComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/game/TimeOfDayComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/physics/PhysicsWorldComponent.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

/// The bases cannot be made by name, so they are declared and not added.
void declareBases() {
  camp::Class::declare<Object>("qsf::Object");
  camp::Class::declare<Prototype>("qsf::Prototype");
  Component::declareCamp();
  Action::declareCamp();
}

template <class... Classes> void declareAll() { (ClassRegistry::declareOnce<Classes>(), ...); }

}

void declareHostClasses() {
  static const bool basesDeclared = (declareBases(), true);
  static_cast<void>(basesDeclared);
  declareAll<TransformComponent, MetadataComponent, LinkComponent, MovableComponent, ActionComponent, MeshComponent,
             MeshAnimationComponent, BulletCollisionComponent, PhysicsWorldComponent, CameraComponent,
             game::TimeOfDayComponent, game::EquipmentComponent, TerrainComponent, StreetCrossingComponent,
             StreetSectionComponent, LightComponent, ParticlesComponent, game::BoneToBoneLinkComponent>();
  declareAll<WaitAction, IdleAction>();
}

}
