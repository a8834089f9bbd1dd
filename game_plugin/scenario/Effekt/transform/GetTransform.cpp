#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/math/EulerAngles.h"

namespace script {

struct GetTransformEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The angles are in radians, though SetTransform takes degrees.",
      "A rotation variable that is left out is logged in the words of the position variable.",
  };

  Argument entityList;
  Argument positionVariable;
  Argument rotationVariable;
};

static void read(GetTransformEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity to ask");
  effect.positionVariable = in.stringVariableOut(2, "no_var", "PositionVariable",
                                                 "Name of the string variable that gets the position as x y z");
  effect.rotationVariable = in.stringVariableOut(
      3, "no_var", "RotationVariable", "Name of the string variable that gets the angles as x y z, in radians");
}

static void run(const GetTransformEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "GetTransformEffect::EntityList was not found")) return;
  for (const Argument* variable : {&effect.positionVariable, &effect.rotationVariable})
    if (isLeftAt(variable->text(), "no_var", "GetTransformEffect::PositionVariable was not found")) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    const auto* transform = entity.getOrCreateComponent<qsf::TransformComponent>();
    handler.SetStringVariable(effect.positionVariable, vectorToText(transform->getPosition()));
    handler.SetStringVariable(effect.rotationVariable,
                              vectorToText(qsf::EulerAngles::quaternionToEuler(transform->getRotation(), EULER_ORDER)));
  });
}

EFFECT(GetTransform, "",
       "Writes the position and the angles of an entity to string variables. Of several entities, "
       "the last one's stay")

}
