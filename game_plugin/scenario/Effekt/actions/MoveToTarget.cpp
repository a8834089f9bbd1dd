#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "em5/action/MoveAction.h"
#include "em5/logic/TargetPointProviders.h"
#include "qsf/ai/ReachObjectGoal.h"

namespace script {

struct MoveToTargetEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Rotation at the target and movement mode have no influence.",
  };

  Argument entityList;
  Argument targetEntity;
  Argument insertionMode;
  Argument priority;
  bool rotateAtTargetPosition = false;
  Argument movementMode;
  bool clearActionPlan = false;
};

static void read(MoveToTargetEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that move");
  effect.targetEntity = in.list(2, "no_list", "TargetEntity", "Entity to go to; of a list the first");
  effect.insertionMode =
      in.words(3, "APPEND_TO_BACK", "Insertion Mode", "Place of the move in their plans", planModeWords());
  effect.priority = in.number(4, "200", "Priority", "Priority of the move");
  effect.rotateAtTargetPosition = in.flag(5, false, "RotateAtTargetPosition", "Has no influence");
  effect.movementMode =
      in.unused(6, "MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS", "MovementMode", "Has no influence");
  effect.clearActionPlan = in.flag(7, false, "Clear Action Plan", "Clears their plans first");
}

static void run(const MoveToTargetEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.targetEntity);
  const EntityIds targets = handler.ResolveEntityList(effect.targetEntity);
  qsf::Entity* target = targets.empty() ? nullptr : findEntity(targets.front());
  if (!target) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    qsf::ActionComponent& actions = actionsOf(entity);
    if (effect.clearActionPlan) actions.clearPlan();
    auto goal = std::make_unique<qsf::ai::ReachObjectGoal>(entity, *target,
                                                           em5::GetEquipmentTargetPointProvider::TARGET_POINT_ID, true);
    actions
        .pushAction<em5::MoveAction>(resolvePriority(handler, effect.priority), insertionModeOf(effect.insertionMode))
        .init(std::move(goal), qsf::getUninitialized<unsigned int>(), nullptr, qsf::Time::ZERO);
  });
}

EFFECT(MoveToTarget, "Actions", "Sends entities beside another one")

}
