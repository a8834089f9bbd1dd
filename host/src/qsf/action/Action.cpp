#include "qsf/action/Action.h"

#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

void Action::declareCamp() { camp::Class::declare<Action>("qsf::Action").base<Object>(); }

std::string Action::getTypeName() const { return getCampClass().name(); }

StringHash Action::getTypeId() const { return StringHash(getTypeName()); }

Entity& Action::getEntity() const { return mComponent->getEntity(); }

std::uint64_t Action::getEntityId() const { return mComponent->getEntityId(); }

Map& Action::getMap() const { return getEntity().getMap(); }

static const DeclaredClass<WaitAction> waitActionClass;

void WaitAction::declareCamp() { camp::Class::declare<WaitAction>("qsf::WaitAction").base<Action>().constructor0(); }

action::Result WaitAction::updateAction(const Clock& clock) {
  mTimeLeft -= clock.getTimePassed();
  return mTimeLeft > Time() ? action::RESULT_CONTINUE : action::RESULT_DONE;
}

static const DeclaredClass<IdleAction> idleActionClass;

void IdleAction::declareCamp() { camp::Class::declare<IdleAction>("qsf::IdleAction").base<Action>().constructor0(); }

}
