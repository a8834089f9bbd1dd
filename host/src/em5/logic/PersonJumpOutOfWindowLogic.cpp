#include "em5/logic/PersonJumpOutOfWindowLogic.h"

#include "em5/base/Messages.h"
#include "em5/component/CallForRescueComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/game/EquipmentComponent.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

/// A cushion has to lie within that many units, seen from above.
constexpr float REACH = 8.0f;
/// Nobody jumps at once.
constexpr qsf::Time HESITATION = qsf::Time::fromMicroseconds(1'000'000);

/// The first in reach; null if there is none.
qsf::Entity* findCushion(const qsf::Entity& person, const glm::vec3& position) {
  const qsf::ComponentMapQuery query(person.getMap());
  for (const auto* equipment : query.getInstancesInCircle<qsf::game::EquipmentComponent>(position, REACH))
    if (equipment->getEquipmentName() == "jump_cushion" && !EntityHelper(equipment->getEntity()).getParentEntity())
      return &equipment->getEntity();
  return nullptr;
}

void land(qsf::Entity& person, const glm::vec3& place) {
  EntityHelper(person).unlinkFromParent();
  if (auto* actions = person.getComponent<qsf::ActionComponent>()) actions->clearPlan();
  person.getOrCreateComponent<qsf::TransformComponent>()->setPosition(place);
}

const qsf::DeclaredClass<PersonJumpOutOfWindowLogic> declared;

}

void PersonJumpOutOfWindowLogic::declareCamp() {
  qsf::ClassRegistry::declareOnce<GameLogic>();
  camp::Class::declare<PersonJumpOutOfWindowLogic>("em5::PersonJumpOutOfWindowLogic").base<GameLogic>().constructor0();
}

void PersonJumpOutOfWindowLogic::onStartup() {
  mCourage = qsf::Time();
  ActingLogic::onStartup();
}

void PersonJumpOutOfWindowLogic::update(qsf::Time timePassed) {
  qsf::Entity* person = findEntity();
  if (!person) return;
  const auto* health = person->getComponent<HealthComponent>();
  const bool canJump = person->getComponent<CallForRescueComponent>() && !(health && health->isInjured());
  qsf::Entity* cushion = canJump ? findCushion(*person, EntityHelper(*person).getPosition()) : nullptr;
  if (!cushion) {
    mCourage = qsf::Time();
    return;
  }
  mCourage += timePassed;
  if (mCourage < HESITATION) return;
  rest(); // once
  land(*person, EntityHelper(*cushion).getPosition());
  // Whoever hears this may delete this logic.
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(Messages::EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON, person->getId()));
}

}
