#include "game_plugin/component/SmokeComponent.h"

#include "game_plugin/component/PropertyTags.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/SensorArea.h"

#include "em5/base/Jobs.h"
#include "em5/base/Messages.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/StatusOverlayComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/health/Injury.h"
#include "em5/map/EntityHelper.h"
#include "em5/order/OrderInfo.h"
#include "em5/plugin/Plugin.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/ParticlesComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"
#include "qsf/reflection/CampTypes.h"

#include <utility>

namespace script {

namespace {

constexpr const char* IGNORE_SMOKE = "IgnoreSmoke";
/// Part of a person's full health that each update takes.
constexpr float HEALTH_LOSS = 0.01f;
constexpr int BAR = em5::BAR_TYPE_LIFE;
constexpr int ICON = em5::STATUS_ICON_SMOKE_POISONING;

/// Calls `act` for the component of that class of each of the entities that has one.
template <class T, class Act> void forEachComponent(const std::vector<std::uint64_t>& ids, Act&& act) {
  for (const std::uint64_t id : ids)
    if (const qsf::Entity* entity = findEntity(id))
      if (T* component = entity->getComponent<T>()) act(*component);
}

bool mindsSmoke(qsf::Entity& person) {
  const em5::OrderInfo* orderInfo = em5::EntityHelper(person).getOrderInfo();
  if (orderInfo && orderInfo->isTagSet(IGNORE_SMOKE)) return false;
  const auto* metadata = person.getComponent<qsf::MetadataComponent>();
  return !metadata || metadata->getDescription().find(IGNORE_SMOKE) == std::string::npos;
}

/// The fire of the first child that has one, else the entity's own; null without either.
em5::FireComponent* findLinkedFire(const qsf::Entity& entity) {
  if (const auto* link = entity.getComponent<qsf::LinkComponent>())
    for (const qsf::LinkComponent* child : link->getChildLinks())
      if (auto* fire = child->getEntity().getComponent<em5::FireComponent>()) return fire;
  return entity.getComponent<em5::FireComponent>();
}

void hideOverlay(std::uint64_t personId) {
  qsf::Entity* person = findEntity(personId);
  if (!person) return;
  em5::StatusOverlayComponent::hideBarOverlay(*person, BAR);
  em5::StatusOverlayComponent::showIcon(*person, ICON, false);
}

}

void SmokeComponent::declareCamp() {
  using Smoke = SmokeComponent;
  camp::Class::declare<Smoke>("script::SmokeComponent")
      .tag("Name", "script::SmokeComponent")
      .tag("Description", "script::SmokeComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Linked Particles", &Smoke::mLinkedParticles)
      .tag("Description", "link smoke particles to this slot")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Burnable Objects", &Smoke::mBurnableObjects)
      .tag("Description", "link objects that can burn. Notice they get unlinked at gamestart which makes them usable "
                          "as targets")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("Burnable Objects in House", &Smoke::mBurnableObjectsInHouse)
      .tag("Description", "A special kind of entity, which has the fire component in the child. This makes it "
                          "impossible to be extinguished by hoses and vehicles")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("BulletBox Area", &Smoke::mBoxes)
      .tag("Description", "Use Collisionmask: 16. CollisionFiltergroup 1540 and set AIProximityProxy as type to let "
                          "units walk at the component")
      .tag(SLOT_TAG, HARD_LINK)
      .tag(qsf::UNSIGNED_TAG)
      .property("StartSimulationAtGameStart", &Smoke::mStartAtGameStart)
      .tag("Description", "If true smoke will appear. If 'Burn Object Required' is true, it will ignite these objects")
      .tag("Default", false)
      .property("Burning Object Required", &Smoke::mBurningObjectRequired)
      .tag("Description", "If true the smoke will turn on if any object is burning and go off when all entities are "
                          "extinguished")
      .tag("Default", false);
}

bool SmokeComponent::onStartup() {
  mGameStartProxy.registerAt(em5::Messages::GAME_STARTUP_FINISHED,
                             [this](const qsf::MessageParameters&) { onGameStarted(); });
  mGameEndProxy.registerAt(em5::Messages::GAME_SHUTDOWN_STARTING, [this](const qsf::MessageParameters&) { endJob(); });
  if (mHasJob) startJob(); // its layer is back
  return true;
}

void SmokeComponent::onShutdown() {
  mJob.unregister();
  mGameStartProxy.unregister();
  mGameEndProxy.unregister();
}

void SmokeComponent::onGameStarted() {
  prepareBoxes();
  startJob();
  prepareBurnables();
  setParticlesActive(false);
}

void SmokeComponent::startJob() {
  mHasJob = true;
  mJob.registerAt(em5::Jobs::SIMULATION_FIRE, [this](const qsf::JobArguments&) { update(); });
}

void SmokeComponent::endJob() {
  mHasJob = false;
  mJob.unregister();
}

/// The boxes only say where the smoke is: nobody bumps into them. That of the house itself stays.
void SmokeComponent::prepareBoxes() {
  forEachComponent<qsf::BulletCollisionComponent>(mBoxes, [](qsf::BulletCollisionComponent& box) {
    box.setActive(false);
    em5::EntityHelper(box.getEntity()).setCollisionEnabled(false);
  });
  if (getEntity().getComponent<qsf::BulletCollisionComponent>()) mBoxes.push_back(getEntityId());
}

void SmokeComponent::prepareBurnables() {
  mBurnableObjects.insert(mBurnableObjects.end(), mBurnableObjectsInHouse.begin(), mBurnableObjectsInHouse.end());
  for (const std::uint64_t id : mBurnableObjects) {
    qsf::Entity* object = script::findEntity(id);
    if (!object) continue;
    auto* link = object->getComponent<qsf::LinkComponent>();
    if (link && link->getParentId() == getEntityId()) link->unlinkFromParent();
    if (mStartAtGameStart) em5::EntityHelper(*object).startFire();
  }
}

void SmokeComponent::update() {
  bool wanted = isAnythingBurning();
  if (!mBurningObjectRequired) {
    // No change that would be noticed: objects in the house are never lit this way.
    wanted = mOn = true;
    keepParticlesActive();
  }
  if (wanted == mOn) {
    if (mOn) updatePeople();
  } else if (wanted) {
    turnOn();
  } else {
    turnOff();
  }
  mOn = wanted;
}

bool SmokeComponent::isAnythingBurning() {
  bool burning = false;
  for (const std::uint64_t id : mBurnableObjects) {
    qsf::Entity* object = script::findEntity(id);
    if (!object || !em5::EntityHelper(*object).isBurning()) continue;
    burning = true;
    if (const em5::FreeplayEvent* event = em5::EntityHelper(*object).getFreeplayEvent()) mEventId = event->getId();
  }
  return burning;
}

void SmokeComponent::turnOn() {
  setParticlesActive(true);
  lightObjectsInHouse();
}

void SmokeComponent::turnOff() {
  mEventId = 0;
  for (const std::uint64_t id : mPeople)
    hideOverlay(id);
  setParticlesActive(false);
}

/// Their fires burn on without doing anything, until somebody goes in and puts them out.
void SmokeComponent::lightObjectsInHouse() const {
  for (const std::uint64_t id : mBurnableObjectsInHouse) {
    qsf::Entity* object = script::findEntity(id);
    if (!object) continue;
    const em5::EntityHelper helper(*object);
    if (helper.isBurnable()) helper.startFire(findEvent());
    if (em5::FireComponent* fire = findLinkedFire(*object)) fire->setActive(false);
  }
}

void SmokeComponent::setParticlesActive(bool active) const {
  forEachComponent<qsf::ParticlesComponent>(mLinkedParticles,
                                            [&](qsf::ParticlesComponent& particles) { particles.setActive(active); });
}

/// Kept: behind the first one that is active already, all others stay as they are.
void SmokeComponent::keepParticlesActive() const {
  for (const std::uint64_t id : mLinkedParticles) {
    const qsf::Entity* entity = script::findEntity(id);
    auto* particles = entity ? entity->getComponent<qsf::ParticlesComponent>() : nullptr;
    if (!particles) continue;
    if (particles->isActive()) return;
    particles->setActive(true);
  }
}

void SmokeComponent::updatePeople() {
  if (!canSense()) {
    endJob();
    return;
  }
  std::set<std::uint64_t> people;
  const std::vector<qsf::Entity*> found = findEntitiesInAreas(mBoxes); // a copy, as injuries may ask sensors, too
  for (qsf::Entity* entity : found) {
    if (!entity->getComponent<em5::PersonComponent>() || people.contains(entity->getId())) continue;
    if (!mindsSmoke(*entity)) continue;
    breathe(*entity);
    people.insert(entity->getId());
  }
  for (const std::uint64_t id : mPeople)
    if (!people.contains(id)) hideOverlay(id);
  mPeople = std::move(people);
}

void SmokeComponent::breathe(qsf::Entity& person) const {
  if (em5::EntityHelper(person).isPersonInjured()) {
    em5::StatusOverlayComponent::hideBarOverlay(person, BAR);
    return;
  }
  auto* health = person.getComponent<em5::HealthComponent>();
  if (!health) return;
  const float energy = health->getHealthEnergy() - health->getMaximumHealthEnergy() * HEALTH_LOSS;
  if (energy < 0.0f) {
    health->injurePersonByEventById(em5::injury::SMOKE_POISONING, findEvent());
    return;
  }
  em5::StatusOverlayComponent::showBarOverlay(person, BAR, energy / health->getMaximumHealthEnergy());
  em5::StatusOverlayComponent::showIcon(person, ICON, true);
  health->setHealthEnergy(energy);
}

em5::FreeplayEvent* SmokeComponent::findEvent() const {
  em5::Plugin* game = mEventId != 0 ? em5::Plugin::getInstance() : nullptr;
  return game ? game->getFreeplaySystem().getEventManager().getEventById(mEventId) : nullptr;
}

}
