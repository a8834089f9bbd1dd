#include "em5/command/LadderCommand.h"

#include "em5/base/Messages.h"
#include "em5/command/CommandContext.h"
#include "em5/component/CallForRescueComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/RoadVehicleComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

constexpr int PRIORITY = 110;
/// The ladder goes up, the person gets on, the ladder comes down.
constexpr qsf::Time WORKING_TIME = qsf::Time::fromMicroseconds(6'000'000);

bool canBeRescued(const qsf::Entity& person) {
  const auto* call = person.getComponent<CallForRescueComponent>();
  return call && call->canRescuedByDLK();
}

const qsf::DeclaredClass<RescueWithLadderCommand> declaredCommand;
const qsf::DeclaredClass<RescueWithLadderAction> declaredAction;

}

RescueWithLadderCommand::RescueWithLadderCommand(qsf::game::CommandManager* manager) : Command(manager, COMMAND_ID) {
  setPriority(PRIORITY);
}

void RescueWithLadderCommand::declareCamp() {
  qsf::ClassRegistry::declareOnce<Command>();
  camp::Class::declare<RescueWithLadderCommand>("em5::RescueWithLadderCommand")
      .base<Command>()
      .constructor1<qsf::game::CommandManager*>();
}

bool RescueWithLadderCommand::checkCaller(qsf::Entity& caller) {
  return caller.getComponent<RoadVehicleComponent>() && EntityHelper(caller).isSquadVehicleInValidState();
}

bool RescueWithLadderCommand::checkContext(const qsf::game::CommandContext& context) {
  return context.mTargetEntity && canBeRescued(*context.mTargetEntity);
}

void RescueWithLadderCommand::execute(const qsf::game::CommandContext& context) {
  context.mCaller->getOrCreateComponent<qsf::ActionComponent>()
      ->pushAction<RescueWithLadderAction>(qsf::ActionComponent::DEFAULT_PRIORITY, qsf::action::REPLACE_WHOLE_PLAN)
      .init(*context.mTargetEntity, WORKING_TIME);
}

void RescueWithLadderAction::declareCamp() {
  qsf::ClassRegistry::declareOnce<WorkAtTargetAction>();
  camp::Class::declare<RescueWithLadderAction>("em5::RescueWithLadderAction").base<WorkAtTargetAction>().constructor0();
}

qsf::Entity& RescueWithLadderAction::getPlaceOf(qsf::Entity& person) const {
  const auto* component = person.getComponent<PersonComponent>();
  qsf::Entity* container = component ? getMap().getEntityById(component->getContainerId()) : nullptr;
  return container ? *container : person;
}

qsf::StringHash RescueWithLadderAction::getTargetPointId() const { return LadderTargetPointProvider::TARGET_POINT_ID; }

void RescueWithLadderAction::finishOn(qsf::Entity& person) {
  if (!canBeRescued(person)) return; // somebody else was faster, or it has jumped
  EntityHelper(person).unlinkFromParent();
  if (auto* actions = person.getComponent<qsf::ActionComponent>()) actions->clearPlan();
  const glm::vec3 beside = EnterVehicleTargetPointProvider().computeTargetPoint(person, getEntity()).getPosition();
  const float ground = EntityHelper(getEntity()).getPosition().y;
  person.getOrCreateComponent<qsf::TransformComponent>()->setPosition({beside.x, ground, beside.z});
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(Messages::EM5_ACTION_LOAD_PERSON_ON_DLK, person.getId()));
}

}
