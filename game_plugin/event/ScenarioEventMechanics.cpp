// What a ScenarioEvent does by itself: persons at windows, boxes, diving spots.
#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/event/InjuredPerson.h"
#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/component/CallForRescueComponent.h"
#include "em5/component/EboxComponent.h"
#include "em5/component/EventIdComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/StatusOverlayComponent.h"
#include "em5/component/UsableByEngineerComponent.h"
#include "em5/component/VehicleComponent.h"
#include "em5/health/Injury.h"
#include "em5/logic/PersonJumpOutOfWindowLogic.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/log/ErrorHandling.h"
#include "qsf/logic/GameLogicComponent.h"

namespace script {

namespace {

constexpr const char* RESCUE = "rescue_dlk";
constexpr const char* RESCUE_AND_INJURE = "rescue_dlk_and_injure";
constexpr const char* REPAIR = "build_ebox";
constexpr const char* SEARCH = "diving_spot";

/// Reason in em5::EventIdComponent of what a diver has found.
constexpr int FOUND = 6;
/// The countdown of the jumps is called that often; the host decides what it makes of it.
constexpr unsigned int JUMP_JOB_INTERVAL = 2;

/// The person jumps no more. False if it has no game logics, which is told.
bool forgetJump(qsf::Entity& person) {
  auto* logics = person.getOrCreateComponent<qsf::GameLogicComponent>();
  if (!logics) {
    qsf::ErrorHandling::printToLog("There was no game logic created", 1);
    qsf::ErrorHandling::handleBreakOnAssert(__FILE__, __LINE__, __func__);
    return false;
  }
  logics->deleteGameLogicByTypeId(em5::PersonJumpOutOfWindowLogic::GAME_LOGIC_ID);
  return true;
}

void endWaving(qsf::Entity& person) {
  if (auto* component = person.getComponent<em5::PersonComponent>()) component->clearAnimation();
  em5::StatusOverlayComponent::showIcon(person, em5::STATUS_ICON_CONDITION_RESCUE_DLK, false);
}

void endCallForRescue(qsf::Entity& person) { person.destroyComponentById(em5::CallForRescueComponent::COMPONENT_ID); }

void injure(qsf::Entity& person, qsf::StringHash injury, em5::FreeplayEvent& event) {
  if (auto* health = person.getComponent<em5::HealthComponent>()) health->injurePersonByEventById(injury, &event, true);
}

/// The vehicle that the entity is or is linked below; null without one.
qsf::Entity* findVehicle(qsf::Entity& entity) {
  const auto* link = entity.getOrCreateComponent<qsf::LinkComponent>();
  for (; link; link = link->getParentLink())
    if (link->getEntity().getComponent<em5::VehicleComponent>()) return &link->getEntity();
  return nullptr;
}

}

void ScenarioEvent::listen() {
  const auto hear = [this](qsf::MessageProxy& proxy, qsf::StringHash message,
                           void (ScenarioEvent::*handler)(const qsf::MessageParameters&)) {
    proxy.registerAt(message,
                     [this, handler](const qsf::MessageParameters& parameters) { (this->*handler)(parameters); });
  };
  hear(mLadderMessageProxy, em5::Messages::EM5_ACTION_LOAD_PERSON_ON_DLK, &ScenarioEvent::onPersonLoadedOnLadder);
  hear(mJumpMessageProxy, em5::Messages::EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON, &ScenarioEvent::onPersonJumped);
  hear(mRepairMessageProxy, em5::Messages::EM5_ACTION_REPAIRED_OR_USED, &ScenarioEvent::onRepaired);
  hear(mDivingMessageProxy, em5::Messages::EM5_ACTION_FIND_ENTITY_FROM_DIVINGSPOT, &ScenarioEvent::onFoundByDiver);
}

qsf::Entity* ScenarioEvent::findOwnEntity(std::uint64_t entityId) const {
  qsf::Entity* entity = findEntity(entityId);
  const auto* membership = entity ? entity->getComponent<em5::EventIdComponent>() : nullptr;
  return membership && membership->getFreeplayEvent() == this ? entity : nullptr;
}

void ScenarioEvent::onPersonLoadedOnLadder(const qsf::MessageParameters& message) {
  qsf::Entity* person = findOwnEntity(message.getFilter(1));
  auto* target = person ? person->getComponent<EventTargetComponent>() : nullptr;
  if (!target || !forgetJump(*person)) return;
  if (target->has(RESCUE)) {
    target->remove(RESCUE);
    increaseObjective(RESCUE, person);
    endWaving(*person);
    endCallForRescue(*person);
    // Kept: such a person counts twice. Missions in the field have their numbers set by it.
    increaseObjective(RESCUE, person);
  } else if (target->has(RESCUE_AND_INJURE)) {
    // Kept: the longer text stays on the person; what is taken off is the other one, which isn't there.
    target->remove(RESCUE);
    endWaving(*person);
    injure(*person, em5::injury::BURN_3_GRADE, *this);
    endCallForRescue(*person);
    increaseObjective(RESCUE, person);
  }
  std::erase_if(mPendingJumps, [&](const PendingJump& jump) { return jump.personId == person->getId(); });
}

void ScenarioEvent::onPersonJumped(const qsf::MessageParameters& message) {
  qsf::Entity* person = findOwnEntity(message.getFilter(1));
  auto* target = person ? person->getComponent<EventTargetComponent>() : nullptr;
  if (!target || !forgetJump(*person)) return;
  if (!target->has(RESCUE) && !target->has(RESCUE_AND_INJURE)) return;
  target->remove(RESCUE);
  endWaving(*person);
  injure(*person, em5::injury::BURN_3_GRADE, *this);
  endCallForRescue(*person);
  increaseObjective(RESCUE, person);
}

void ScenarioEvent::onRepaired(const qsf::MessageParameters& message) {
  qsf::Entity* entity = findOwnEntity(message.getFilter(1));
  if (!entity) return;
  logInfo(std::to_string(entity->getId()));
  if (auto* ebox = entity->getComponent<em5::EboxComponent>()) ebox->setEboxIntact();
  increaseObjective(REPAIR, entity);
  entity->destroyComponentById(em5::UsableByEngineerComponent::COMPONENT_ID);
}

void ScenarioEvent::onFoundByDiver(const qsf::MessageParameters& message) {
  if (!findOwnEntity(message.getFilter(1))) return;
  increaseObjective(SEARCH, nullptr);
  qsf::Entity* found = findEntity(message.getFilter(2));
  qsf::Entity* vehicle = found ? findVehicle(*found) : nullptr;
  if (!vehicle) return;
  placeInjuredPersonInVehicle(*vehicle, *this, em5::injury::WATER_FILLED_LUNG);
  vehicle->getOrCreateComponent<em5::EventIdComponent>()->addToEvent(*this, FOUND);
}

void ScenarioEvent::addPendingJump(float seconds, std::uint64_t personId) {
  mPendingJumps.push_back({seconds, personId});
  mJumpJobProxy.registerAt(
      em5::Jobs::SIMULATION_LOGIC,
      [this](const qsf::JobArguments& arguments) { countDownJumps(arguments.getTimePassed()); },
      qsf::jobs::JobConfiguration(JUMP_JOB_INTERVAL));
}

void ScenarioEvent::countDownJumps(qsf::Time timePassed) {
  if (mPendingJumps.empty()) {
    mJumpJobProxy.unregister();
    return;
  }
  // Kept: the walk goes on behind the place of one that is erased, so the one that moves there waits for the next call.
  std::size_t next = 0;
  while (next < mPendingJumps.size()) {
    PendingJump& jump = mPendingJumps[next++];
    jump.secondsLeft -= timePassed.getSeconds();
    if (jump.secondsLeft > 0) continue;
    qsf::Entity* person = findEntity(jump.personId);
    auto* health = person ? person->getComponent<em5::HealthComponent>() : nullptr;
    const PendingJump done = jump;
    if (health && !health->isInjured()) health->injurePersonByEventById(em5::injury::BROKEN_LEG, this, true);
    std::erase(mPendingJumps, done);
  }
}

}
