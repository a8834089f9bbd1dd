#include "game_plugin/scenario/lifecycle/SuitChangeGuard.h"

#include "em5/action/ChangeMaskAction.h"
#include "em5/base/Jobs.h"
#include "em5/component/CommandableComponent.h"
#include "em5/logic/FiremanLogic.h"
#include "qsf/Qsf.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/ComponentMapQuery.h"

#include <algorithm>

namespace script {

namespace {

bool isFirefighter(const qsf::Entity& unit) {
  const auto* logics = unit.getComponent<qsf::GameLogicComponent>();
  return logics && logics->getGameLogic<em5::FiremanLogic>();
}

}

void SuitChangeGuard::switchOn() {
  mJob.registerAt(
      em5::Jobs::ANIMATION_VEHICLE, [](const qsf::JobArguments&) { removeChanges(); }, qsf::jobs::JobConfiguration(2));
}

void SuitChangeGuard::removeChanges() {
  for (const auto* unit : qsf::ComponentMapQuery(qsf::getMainMap()).getAllInstances<em5::CommandableComponent>()) {
    if (!isFirefighter(unit->getEntity())) continue;
    auto* actions = unit->getEntity().getComponent<qsf::ActionComponent>();
    if (!actions) continue;
    const auto& plan = actions->getPlan().getActions();
    const auto change = std::ranges::find_if(
        plan, [](const qsf::Action* action) { return action->getTypeId() == em5::ChangeMaskAction::ACTION_ID; });
    if (change != plan.end()) actions->removeAction(*change);
  }
}

}
