#include "qsf/action/Action.h"

#include "qsf/action/ActionComponent.h"
#include "qsf/action/WaitAction.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

std::size_t sNumberOfLiving = 0;

}

Action::Action() { ++sNumberOfLiving; }

Action::~Action() { --sNumberOfLiving; }

std::size_t Action::getNumberOfLiving() { return sNumberOfLiving; }

void Action::declareCamp() { camp::Class::declare<Action>("qsf::Action").base<Object>(); }

std::string Action::getTypeName() const { return getCampClass().name(); }

StringHash Action::getTypeId() const {
  if (!mTypeId.isInitialized()) mTypeId = StringHash(getTypeName()); // conditions ask in every tick
  return mTypeId;
}

Entity& Action::getEntity() const { return mComponent->getEntity(); }

std::uint64_t Action::getEntityId() const { return mComponent->getEntityId(); }

Map& Action::getMap() const { return getEntity().getMap(); }

static const DeclaredClass<WaitAction> waitActionClass;

void WaitAction::declareCamp() { camp::Class::declare<WaitAction>("qsf::WaitAction").base<Action>().constructor0(); }

action::Description WaitAction::describe() const { return {{"time", toText(mSpan.getSecondsAsDouble())}}; }

bool WaitAction::onStartup() {
  mTimeLeft = mSpan;
  return true;
}

action::Result WaitAction::updateAction(const Clock& clock) {
  mTimeLeft -= clock.getTimePassed();
  return mTimeLeft > Time() ? action::RESULT_CONTINUE : action::RESULT_DONE;
}

static const DeclaredClass<IdleAction> idleActionClass;

void IdleAction::declareCamp() { camp::Class::declare<IdleAction>("qsf::IdleAction").base<Action>().constructor0(); }

}
