#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"
#include "game_plugin/scenario/shared/VectorArgument.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/math/EulerAngles.h"

namespace script {

struct GetTransformEffect : DefaultEffect {
  Argument entityList;
  Argument positionVariable;
  Argument rotationVariable;
};

static void read(GetTransformEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entity to ask");
  effect.positionVariable = readStringParameter(tokens, 2, "no_var", "PositionVariable",
                                                "Name of the string variable that gets the position as x y z");
  effect.rotationVariable = readStringParameter(
      tokens, 3, "no_var", "RotationVariable", "Name of the string variable that gets the angles as x y z, in radians");
}

static void run(const GetTransformEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "GetTransformEffect::EntityList was not found")) return;
  // Either of the two is told in the words of the position.
  for (const Argument* variable : {&effect.positionVariable, &effect.rotationVariable})
    if (isLeftAt(variable->text(), "no_var", "GetTransformEffect::PositionVariable was not found")) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    const auto* transform = entity.getOrCreateComponent<qsf::TransformComponent>();
    handler.SetStringVariable(effect.positionVariable, vectorToText(transform->getPosition()));
    // Kept: radians, though SetTransform takes degrees.
    handler.SetStringVariable(effect.rotationVariable,
                              vectorToText(qsf::EulerAngles::quaternionToEuler(transform->getRotation(), EULER_ORDER)));
  });
}

EFFECT(GetTransform, "",
       "Writes the position and the angles of an entity to string variables. Of several entities, "
       "the last one's stay")

}
