#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

#include "qsf/component/MovableComponent.h"
#include "qsf/component/TransformComponent.h"

namespace script {

struct RotateObjectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The angles are radians: 0 90 0 turns by 90 radians.",
      "What can move turns at a pace that comes from the sum of the three angles alone.",
  };

  Argument entityList;
  Argument rotationVector;
};

static void read(RotateObjectEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities to turn");
  effect.rotationVector = in.vector(2, "0 1 0", "RotationVector", "Angles x y z in radians by which they turn");
}

static void turn(qsf::Entity& entity, const glm::vec3& angles) {
  const glm::quat rotation(angles);
  if (auto* movable = entity.getComponent<qsf::MovableComponent>()) {
    movable->moveToRotation(glm::normalize(movable->getRotation() * rotation));
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
