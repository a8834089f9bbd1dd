#include "em5/component/BuildingComponent.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/component/CallForRescueComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/SpawnPointComponent.h"
#include "em5/component/StatusOverlayComponent.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/freeplay/ObjectiveHelper.h"
#include "em5/health/Injury.h"
#include "em5/logic/PersonJumpOutOfWindowLogic.h"
#include "em5/map/AnimationHelper.h"
#include "em5/map/EntityHelper.h"
#include "em5/spawn/SpawnPoolManager.h"
#include "qsf/Qsf.h"
#include "qsf/base/Random.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <utility>

namespace em5 {

namespace {

/// Reason in em5::EventIdComponent.
constexpr int PART_OF_EVENT = 1;
/// Who comes out stands that far in front of the building.
constexpr float FRONT_DISTANCE = 1.5f;
constexpr float WINDOW_HEIGHT = 5.0f;
/// Somebody at a window jumps after that time.
constexpr qsf::Time PATIENCE = qsf::Time::fromMicroseconds(300'000'000);

int drawNumber(std::uint16_t minimum, std::uint16_t maximum) {
  const auto most = static_cast<std::uint16_t>(BuildingComponent::MOST_PERSONS);
  const std::uint16_t least = std::min(minimum, most);
  const std::uint16_t largest = std::min(std::max(minimum, maximum), most);
  return least == largest ? least : qsf::Random::getRandomInt(least, largest);
}

}

static const qsf::DeclaredClass<BuildingComponent> declared;

void BuildingComponent::declareCamp() {
  camp::Class::declare<BuildingComponent>("em5::BuildingComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("EntityIds", &BuildingComponent::mEntityIds)
      .tag(qsf::UNSIGNED_TAG)
      .property("Lights", &BuildingComponent::mLights)
      .tag(qsf::UNSIGNED_TAG)
      .property("TrappedPersons", &BuildingComponent::getTrappedPersons,
                &BuildingComponent::setTrappedPersonsByReflection)
      .property("InjuredPersons", &BuildingComponent::getInjuredPersons,
                &BuildingComponent::setInjuredPersonsByReflection)
      .property("PersonAtWindow", &BuildingComponent::getPersonAtWindow)
      .tag(qsf::UNSIGNED_TAG);
}

void BuildingComponent::setTrappedPersonsByReflection(int number) {
  number = std::clamp(number, 0, 2 * MOST_PERSONS);
  while (isRunning() && getTrappedPersons() > number && freeTrappedPerson()) {
  }
  mInjured = std::min(mInjured, number);
  mHealthy = number - mInjured;
  updateJob();
}

void BuildingComponent::setInjuredPersonsByReflection(int number) {
  const int all = getTrappedPersons();
  mInjured = std::clamp(number, 0, MOST_PERSONS);
  mHealthy = std::max(all - mInjured, 0);
  updateJob();
}

void BuildingComponent::setupTrappedInjuredPersons(std::uint16_t minimumHealthy, std::uint16_t maximumHealthy,
                                                   std::uint16_t minimumInjured, std::uint16_t maximumInjured,
                                                   bool needed, bool mortal, qsf::Time maximumTime) {
  forgetTrappedPersons();
  mHealthy = drawNumber(minimumHealthy, maximumHealthy);
  mInjured = drawNumber(minimumInjured, maximumInjured);
  mNeeded = needed;
  mMortal = mortal && maximumTime > qsf::Time();
  mTimeLeft = maximumTime;
  updateJob();
}

void BuildingComponent::setupTrappedPersons(std::uint16_t minimum, std::uint16_t maximum, bool needed,
                                            qsf::Time maximumTime) {
  setupTrappedInjuredPersons(minimum, maximum, 0, 0, needed, true, maximumTime);
}

void BuildingComponent::createTrappedPerson(FreeplayEvent* event) {
  if (getTrappedPersons() == 0) mHealthy = 1;
  if (event) joinEvent(*event);
}

void BuildingComponent::joinEvent(FreeplayEvent& event) {
  if (ObjectiveHelper::findEvent(mEventId)) return; // they count for one event only
  mEventId = event.getId();
  event.addEntityToEvent(getEntity(), PART_OF_EVENT);
  if (mNeeded) ObjectiveHelper(event).addTask(ObjectiveHelper::FREE_TRAPPED_PERSONS, getTrappedPersons());
}

/// Takes those inside back, as if they had never been there.
void BuildingComponent::forgetTrappedPersons() {
  FreeplayEvent* event = ObjectiveHelper::findEvent(std::exchange(mEventId, 0));
  if (event && mNeeded)
    ObjectiveHelper(*event).withdrawTask(ObjectiveHelper::FREE_TRAPPED_PERSONS, getTrappedPersons());
  mHealthy = 0;
  mInjured = 0;
}

qsf::Entity* BuildingComponent::spawnPersonInFront() {
  return SpawnPointComponent::spawnRandomAt(getEntity().getMap(), assets::SPAWNPOOL_DEFAULT_PERSON,
                                            getPlaceAtFront(0, FRONT_DISTANCE),
                                            EntityHelper(getEntity()).getRotation());
}

qsf::Entity* BuildingComponent::takeOut(int& kind) {
  qsf::Entity* person = spawnPersonInFront();
  if (!person) return nullptr;
  --kind;
  if (FreeplayEvent* event = ObjectiveHelper::findEvent(mEventId)) {
    event->addEntityToEvent(*person, PART_OF_EVENT);
    if (mNeeded) ObjectiveHelper(*event).countTask(ObjectiveHelper::FREE_TRAPPED_PERSONS);
  }
  updateJob();
  return person;
}

qsf::Entity* BuildingComponent::freeTrappedPerson() {
  if (getTrappedPersons() == 0) return nullptr;
  if (mInjured == 0) return takeOut(mHealthy);
  qsf::Entity* person = takeOut(mInjured);
  if (auto* health = person ? person->getComponent<HealthComponent>() : nullptr)
    health->injurePersonById(injury::SMOKE_POISONING);
  return person;
}

void BuildingComponent::onFireIsOut() {
  while (mHealthy > 0 && takeOut(mHealthy)) {
  }
}

void BuildingComponent::losePersons() {
  FreeplayEvent* event = ObjectiveHelper::findEvent(mEventId);
  const int number = getTrappedPersons();
  forgetTrappedPersons(); // nobody can get them out any more
  for (int i = 0; i < number; ++i) {
    qsf::Entity* person = spawnPersonInFront();
    if (!person) return;
    EntityHelper(*person).enterContainer(getEntity());
    if (auto* health = person->getComponent<HealthComponent>()) health->killPerson(event);
  }
}

bool BuildingComponent::letPersonWaveOutOfWindow(qsf::Entity& person, FreeplayEvent* event, float probability) {
  auto* component = person.getComponent<PersonComponent>();
  if (!component || component->getContainerId() != getEntityId()) return false;
  if (getEntity().getMap().getEntityById(mPersonAtWindow)) return false;
  if (probability < 1 && !(qsf::Random::getRandomFloat(0, 1) < probability)) return false;
  forgetWindow();
  mPersonAtWindow = person.getId();
  mTimeToJump = PATIENCE;
  person.getOrCreateComponent<qsf::TransformComponent>()->setPosition(getPlaceAtFront(WINDOW_HEIGHT, 0));
  person.setHidden(false);
  component->setAnimation(AnimationHelper::getAnimationWaveHelpFromWindow());
  StatusOverlayComponent::showIcon(person, STATUS_ICON_CONDITION_RESCUE_DLK, true);
  person.getOrCreateComponent<CallForRescueComponent>()->setCanRescuedByDLK(true);
  person.getOrCreateComponent<qsf::GameLogicComponent>()->createGameLogicByTypeId(
      PersonJumpOutOfWindowLogic::GAME_LOGIC_ID);
  if (event) {
    mWindowEventId = event->getId();
    event->addEntityToEvent(person, PART_OF_EVENT);
    ObjectiveHelper(*event).addTask(ObjectiveHelper::RESCUE_FROM_WINDOW, 1, &person);
  }
  listenForRescue();
  updateJob();
  return true;
}

void BuildingComponent::listenForRescue() {
  const auto leave = [this](const qsf::MessageParameters&) { leaveWindow(); };
  mLadderMessageProxy.registerAt(qsf::MessageConfiguration(Messages::EM5_ACTION_LOAD_PERSON_ON_DLK, mPersonAtWindow),
                                 leave);
  mJumpMessageProxy.registerAt(
      qsf::MessageConfiguration(Messages::EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON, mPersonAtWindow), leave);
}

void BuildingComponent::jump(qsf::Entity& person) {
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(Messages::EM5_ACTION_JUMPEDOUTOFWINDOW_PERSON, person.getId()));
  if (auto* health = person.getComponent<HealthComponent>()) health->injurePersonById(injury::BROKEN_LEG);
}

void BuildingComponent::leaveWindow() {
  qsf::Entity* person = getEntity().getMap().getEntityById(mPersonAtWindow);
  auto* component = person ? person->getComponent<PersonComponent>() : nullptr;
  if (component) {
    component->clearAnimation();
    StatusOverlayComponent::showIcon(*person, STATUS_ICON_CONDITION_RESCUE_DLK, false);
    person->destroyComponentById(CallForRescueComponent::COMPONENT_ID);
    if (auto* logics = person->getComponent<qsf::GameLogicComponent>())
      logics->deleteGameLogicByTypeId(PersonJumpOutOfWindowLogic::GAME_LOGIC_ID);
    if (component->getContainerId() == getEntityId()) {
      EntityHelper(*person).unlinkFromParent();
      person->getOrCreateComponent<qsf::TransformComponent>()->setPosition(getPlaceAtFront(0, FRONT_DISTANCE));
    }
    if (FreeplayEvent* event = ObjectiveHelper::findEvent(std::exchange(mWindowEventId, 0)))
      ObjectiveHelper(*event).countTask(ObjectiveHelper::RESCUE_FROM_WINDOW, person);
  }
  forgetWindow();
}

void BuildingComponent::forgetWindow() {
  if (FreeplayEvent* event = ObjectiveHelper::findEvent(std::exchange(mWindowEventId, 0)))
    ObjectiveHelper(*event).withdrawTask(ObjectiveHelper::RESCUE_FROM_WINDOW, 1);
  mPersonAtWindow = qsf::UNINITIALIZED_ID;
  mLadderMessageProxy.unregister();
  mJumpMessageProxy.unregister();
  updateJob();
}

glm::vec3 BuildingComponent::getPlaceAtFront(float height, float distance) const {
  const EntityHelper helper(getEntity());
  glm::vec3 local(0, height, distance);
  if (const auto* box = getEntity().getComponent<qsf::BulletCollisionComponent>())
    local += glm::vec3(box->getOffset().x, 0, box->getOffset().z + box->getSize().z / 2);
  return helper.getPosition() + helper.getRotation() * local;
}

glm::vec3 BuildingComponent::getExplosionCenterWorldSpacePosition() const {
  const EntityHelper helper(getEntity());
  const auto* box = getEntity().getComponent<qsf::BulletCollisionComponent>();
  return helper.getPosition() + (box ? helper.getRotation() * box->getOffset() : glm::vec3(0, 0, 0));
}

bool BuildingComponent::onStartup() {
  updateJob();
  return true;
}

void BuildingComponent::onShutdown() {
  // What is gone can't be worked on any more.
  forgetTrappedPersons();
  forgetWindow();
  mJob.unregister();
}

void BuildingComponent::updateJob() {
  const bool isDying = mMortal && getTrappedPersons() > 0;
  const bool isNeeded = isRunning() && (isDying || mPersonAtWindow != qsf::UNINITIALIZED_ID);
  if (isNeeded == mJob.isRegistered()) return;
  if (isNeeded)
    mJob.registerAt(Jobs::SIMULATION_LOGIC,
                    [this](const qsf::JobArguments& arguments) { update(arguments.getTimePassed()); });
  else
    mJob.unregister();
}

void BuildingComponent::update(qsf::Time timePassed) {
  if (!isActive()) return;
  if (mMortal && getTrappedPersons() > 0 && (mTimeLeft -= timePassed) <= qsf::Time()) losePersons();
  if (mPersonAtWindow != qsf::UNINITIALIZED_ID) {
    qsf::Entity* person = getEntity().getMap().getEntityById(mPersonAtWindow);
    if (!person)
      forgetWindow();
    else if ((mTimeToJump -= timePassed) <= qsf::Time())
      jump(*person);
  }
  updateJob();
}

}
