#include "em5/action/SpeakToPersonAction.h"

#include "em5/action/MoveAction.h"
#include "em5/action/TurnToAction.h"
#include "em5/base/Messages.h"
#include "em5/component/PersonComponent.h"
#include "em5/logic/TargetPointProviders.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachObjectGoal.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/ClassRegistry.h"

namespace em5 {

namespace {

constexpr qsf::Time DURATION = qsf::Time::fromMicroseconds(2'000'000);

void emitSpoken(std::uint64_t policemanId, std::uint64_t personId) {
  const qsf::Qsf* host = qsf::Qsf::instance();
  if (!host) return;
  qsf::MessageParameters parameters(
      qsf::MessageConfiguration(Messages::EM5_ACTION_SPEAK_TO_PERSON, policemanId, personId));
  parameters.setParameter("PolicemanId", policemanId);
  parameters.setParameter("PersonId", personId);
  host->getMessageSystem().emitMessage(parameters);
}

}

static const qsf::DeclaredClass<SpeakToPersonAction> declared;

void SpeakToPersonAction::declareCamp() {
  camp::Class::declare<SpeakToPersonAction>("em5::SpeakToPersonAction").base<Action>().constructor0();
}

void SpeakToPersonAction::init(const qsf::Entity& person) { mPersonId = person.getId(); }

qsf::action::Description SpeakToPersonAction::describe() const { return {{"target", std::to_string(mPersonId)}}; }

bool SpeakToPersonAction::onStartup() {
  mTimeLeft = DURATION;
  return getEntity().getComponent<PersonComponent>() != nullptr;
}

qsf::action::Result SpeakToPersonAction::updateAction(const qsf::Clock& clock) {
  using qsf::logic::TargetPointProvider;
  qsf::Entity* person = getMap().getEntityById(mPersonId);
  if (!person || person == &getEntity() || !person->getComponent<PersonComponent>()) return qsf::action::RESULT_DONE;
  qsf::ActionComponent& actions = getActionComponent();
  if (!TargetPointProvider::isWithinReach(getEntity(), *person)) {
    if (std::exchange(mHasWalked, true)) return qsf::action::RESULT_DONE;
    auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(getEntity(), *person,
                                                           GetEquipmentTargetPointProvider::TARGET_POINT_ID, true);
    actions.pushAction<MoveAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT).init(std::move(goal));
    return qsf::action::RESULT_CONTINUE;
  }
  if (!std::exchange(mHasTurned, true)) {
    actions.pushAction<TurnToAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT).init(*person);
    return qsf::action::RESULT_CONTINUE;
  }
  mTimeLeft -= clock.getTimePassed();
  if (mTimeLeft > qsf::Time()) return qsf::action::RESULT_CONTINUE;
  emitSpoken(getEntityId(), mPersonId);
  return qsf::action::RESULT_DONE;
}

}
