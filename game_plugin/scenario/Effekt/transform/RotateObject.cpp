#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/VectorArgument.h"

#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"

namespace script {

struct RotateObjectEffect : DefaultEffect {
  Argument entityList;
  Argument rotationVector;
};

static void read(RotateObjectEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities to turn");
  effect.rotationVector =
      readStringParameter(tokens, 2, "0 1 0", "RotationVector", "Angles x y z in radians by which they turn");
}

static void turn(qsf::Entity& entity, const glm::vec3& angles) {
  const glm::quat rotation(angles);
  if (auto* movable = entity.getComponent<qsf::MovableComponent>()) {
    movable->moveToRotation(glm::normalize(movable->getRotation() * rotation));
    // The pace comes from the sum of the angles alone; scripts' turns look as they do because of it.
    const glm::vec3 pace(5.0f * (angles.x + angles.y + angles.z), 0.0f, 0.0f);
    movable->setAngularVelocity(glm::quat(pace), qsf::Time::fromSeconds(0.1));
  } else if (auto* transform = entity.getComponent<qsf::TransformComponent>()) {
    transform->setRotation(glm::normalize(transform->getRotation() * rotation));
  }
}

static void run(const RotateObjectEffect& effect, ScenarioHandler& handler) {
  const std::optional<glm::vec3> angles = splitVector(handler, effect.rotationVector);
  if (!angles) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) { turn(entity, *angles); });
}

EFFECT(RotateObject, "Units", "Turns entities from where they look now. What can move takes its time")

}
