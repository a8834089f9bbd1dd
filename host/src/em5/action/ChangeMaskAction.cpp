#include "em5/action/ChangeMaskAction.h"

#include "em5/component/PersonComponent.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

constexpr qsf::Time DURATION = qsf::Time::fromMicroseconds(2'000'000);

}

static const qsf::DeclaredClass<ChangeMaskAction> declared;

void ChangeMaskAction::declareCamp() {
  camp::Class::declare<ChangeMaskAction>("em5::ChangeMaskAction").base<Action>().constructor0();
}

qsf::action::Description ChangeMaskAction::describe() const {
  if (!mWanted) return {};
  return {{"masked", *mWanted ? "1" : "0"}};
}

bool ChangeMaskAction::onStartup() {
  const auto* person = getEntity().getComponent<PersonComponent>();
  if (!person) return false;
  if (!mWanted) mWanted = !person->isMasked();
  mTimeLeft = DURATION;
  return person->isMasked() != *mWanted;
}

qsf::action::Result ChangeMaskAction::updateAction(const qsf::Clock& clock) {
  mTimeLeft -= clock.getTimePassed();
  if (mTimeLeft > qsf::Time()) return qsf::action::RESULT_CONTINUE;
  if (auto* person = getEntity().getComponent<PersonComponent>()) person->setMasked(*mWanted);
  return qsf::action::RESULT_DONE;
}

}
