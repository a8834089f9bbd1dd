#include "em5/action/GangsterActions.h"

#include "em5/action/MoveAction.h"
#include "em5/logic/GangsterLogic.h"
#include "em5/map/EntityHelper.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/ai/ReachSinglePointGoal.h"
#include "qsf/logic/GameLogicComponent.h"
#include "qsf/map/Map.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace em5 {

namespace {

/// Whoever is that near to the border has reached it.
constexpr float ARRIVAL_DISTANCE = 0.5f;

/// The nearest place on the map's border, at the same height.
glm::vec3 findBorder(const qsf::Map& map, const glm::vec3& from) {
  const qsf::Map::Bounds& bounds = map.getBounds();
  const std::array<glm::vec3, 4> places = {
      glm::vec3(bounds.minimumX, from.y, from.z), glm::vec3(bounds.maximumX, from.y, from.z),
      glm::vec3(from.x, from.y, bounds.minimumZ), glm::vec3(from.x, from.y, bounds.maximumZ)};
  return *std::ranges::min_element(
      places, {}, [&](const glm::vec3& place) { return std::hypot(place.x - from.x, place.z - from.z); });
}

const qsf::DeclaredClass<DeedAction> declaredDeed;
const qsf::DeclaredClass<EscapeAction> declaredEscape;

}

void DeedAction::declareCamp() {
  qsf::ClassRegistry::declareOnce<WorkAtTargetAction>();
  camp::Class::declare<DeedAction>("em5::DeedAction").base<WorkAtTargetAction>().constructor0();
}

void DeedAction::finishOn(qsf::Entity& victim) {
  const auto* logics = getEntity().getComponent<qsf::GameLogicComponent>();
  const auto* logic = logics ? logics->getGameLogic<GangsterBaseLogic>() : nullptr;
  if (logic && logic->isVictim(victim)) logic->doDeed(victim, EntityHelper(getEntity()).getFreeplayEvent());
}

void EscapeAction::declareCamp() {
  camp::Class::declare<EscapeAction>("em5::EscapeAction").base<Action>().constructor0();
}

qsf::action::Result EscapeAction::updateAction(const qsf::Clock&) {
  const glm::vec3 here = EntityHelper(getEntity()).getPosition();
  const glm::vec3 border = findBorder(getMap(), here);
  const bool isThere = std::hypot(border.x - here.x, border.z - here.z) <= ARRIVAL_DISTANCE;
  if (isThere || !EntityHelper(getEntity()).isInMapBoundaries()) {
    getMap().destroyObjectById(getEntityId());
    return qsf::action::RESULT_DONE;
  }
  if (std::exchange(mHasGone, true)) return qsf::action::RESULT_DONE;
  getActionComponent()
      .pushAction<MoveAction>(getPriority(), qsf::action::INSERT_BEFORE_CURRENT)
      .init(std::make_unique<qsf::ai::ReachSinglePointGoal>(qsf::logic::TargetPoint(border, true, ARRIVAL_DISTANCE)),
            MOVEMENT_MODE_RUN_PANIC);
  return qsf::action::RESULT_CONTINUE;
}

}
