// The deeds of gangsters, class by class.
#include "em5/component/EboxComponent.h"
#include "em5/component/FireComponent.h"
#include "em5/component/HealthComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/component/UsableByEngineerComponent.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/health/Injury.h"
#include "em5/logic/GangsterLogic.h"
#include "em5/map/EntityHelper.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

constexpr int PART_OF_EVENT = 1;

template <class T> void declare(const char* name) {
  qsf::ClassRegistry::declareOnce<GangsterBaseLogic>();
  camp::Class::declare<T>(name).template base<GangsterBaseLogic>().constructor0();
}

void injure(qsf::Entity& person, qsf::StringHash injury, FreeplayEvent* event) {
  if (auto* health = person.getComponent<HealthComponent>()) health->injurePersonByEventById(injury, event);
}

const qsf::DeclaredClass<GangsterArsonist> declaredArsonist;
const qsf::DeclaredClass<GangsterBlackoutFP> declaredBlackout;
const qsf::DeclaredClass<GangsterCivilArmedLogic> declaredArmed;
const qsf::DeclaredClass<GangsterAttackEveryoneLogic> declaredAttacker;

}

void GangsterArsonist::declareCamp() { declare<GangsterArsonist>("em5::GangsterArsonist"); }

qsf::StringHash GangsterArsonist::getVictimComponentId() const { return FireComponent::COMPONENT_ID; }

bool GangsterArsonist::isVictim(qsf::Entity& entity) const {
  const EntityHelper helper(entity);
  return helper.isBurnable() && !helper.isBurning() && !helper.isVehicle();
}

void GangsterArsonist::doDeed(qsf::Entity& victim, FreeplayEvent* event) const {
  EntityHelper(victim).startFire(event);
}

void GangsterBlackoutFP::declareCamp() { declare<GangsterBlackoutFP>("em5::GangsterBlackoutFP"); }

qsf::StringHash GangsterBlackoutFP::getVictimComponentId() const { return EboxComponent::COMPONENT_ID; }

bool GangsterBlackoutFP::isVictim(qsf::Entity& entity) const {
  const auto* ebox = entity.getComponent<EboxComponent>();
  return ebox && !ebox->isDefect();
}

void GangsterBlackoutFP::doDeed(qsf::Entity& victim, FreeplayEvent* event) const {
  victim.getComponent<EboxComponent>()->setDefect(true);
  victim.getOrCreateComponent<UsableByEngineerComponent>();
  if (event) event->addEntityToEvent(victim, PART_OF_EVENT);
}

void GangsterCivilArmedLogic::declareCamp() { declare<GangsterCivilArmedLogic>("em5::GangsterCivilArmedLogic"); }

qsf::StringHash GangsterCivilArmedLogic::getVictimComponentId() const { return PersonComponent::COMPONENT_ID; }

bool GangsterCivilArmedLogic::isVictim(qsf::Entity& entity) const {
  return EntityHelper(entity).isCivilPersonInValidState();
}

void GangsterCivilArmedLogic::doDeed(qsf::Entity& victim, FreeplayEvent* event) const {
  injure(victim, injury::GUN_SHOT_WOUND_BODY, event);
}

void GangsterAttackEveryoneLogic::declareCamp() {
  declare<GangsterAttackEveryoneLogic>("em5::GangsterAttackEveryoneLogic");
}

qsf::StringHash GangsterAttackEveryoneLogic::getVictimComponentId() const { return PersonComponent::COMPONENT_ID; }

bool GangsterAttackEveryoneLogic::isVictim(qsf::Entity& entity) const {
  const EntityHelper helper(entity);
  return helper.isCivilPersonInValidState() || helper.isSquadPersonInValidState();
}

void GangsterAttackEveryoneLogic::doDeed(qsf::Entity& victim, FreeplayEvent* event) const {
  injure(victim, injury::STAB_WOUND_BODY, event);
}

}
