#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

#include "em5/action/MoveAction.h"
#include "qsf/ai/ReachSinglePointGoal.h"

namespace script {

struct MoveActionEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A position or rotation of fewer than three parts is a fault that ends the script's tick; more than three are "
      "not looked at.",
      "The log is told \"entity found\" for each entity.",
  };

  Argument entityList;
  Argument insertionMode;
  int priority = 100;
  Argument position;
  Argument rotation;
  Argument movementMode;
  bool clearListBefore = true;
};

static void read(MoveActionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that move");
  effect.insertionMode =
      in.words(2, "APPEND_TO_BACK", "InsertionMode", "Place of the move in their plans", planModeWords());
  effect.priority = in.integer(3, 100, "Priority", "Priority of the move");
  effect.position =
      in.vector(4, "0 0 0", "Position", "x y z, each a number or a variable, or svar(name) of such a text");
  effect.rotation = in.vector(5, "0 0 0", "Rotation", "Angles x y z in degrees, taken up at the end of the way");
  effect.movementMode = in.words(6, "MOVEMENT_MODE_PLAYER_VEHICLE_ON_EMERGENCY_OPERATIONS", "MovementMode",
                                 "How they move", movementModeWords());
  effect.clearListBefore = in.flag(7, true, "ClearListBefore", "Clears their plans first");
}

static void run(const MoveActionEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "MoveActionEffect::EntityList not found")) return;
  const glm::vec3 position = resolveParts(handler, splitParts(handler, effect.position));
  const glm::quat rotation = rotationFromDegrees(resolveParts(handler, splitParts(handler, effect.rotation)));
  const qsf::logic::TargetPoint targetPoint(position, false, 0, 0, rotation);
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    logInfo("entity found");
    qsf::ActionComponent& actions = actionsOf(entity);
    if (effect.clearListBefore) actions.clearPlan();
    actions
        .pushAction<em5::MoveAction>(static_cast<unsigned int>(effect.priority), insertionModeOf(effect.insertionMode))
        .init(std::make_unique<qsf::ai::ReachSinglePointGoal>(targetPoint),
              static_cast<unsigned int>(ToMovementMode(effect.movementMode.text())), nullptr, qsf::Time::ZERO);
  });
}

EFFECT(MoveAction, "Actions", "Sends entities to a place")

}
