#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Spawn.h"

#include "qsf/component/TransformComponent.h"

namespace script {

struct SpawnObjectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A list called empty_list, or a single blank, counts as left empty.",
      "A position or rotation that can't be read is logged in the words of SetTransform.",
  };

  Argument localAssetName;
  Argument addToEntityList;
  bool setPosition = true;
  Argument position;
  bool setRotation = true;
  Argument rotation;
  Argument spawnPointUnit;
};

static void read(SpawnObjectEffect& effect, ParameterReader& in) {
  effect.localAssetName =
      in.prefab(1, "LocalAssetNotFound", "LocalAssetName", "Name of the prefab, like em5/prefab/test/tree");
  effect.addToEntityList = in.listOut(2, "", "AddToEntityList", "List that gets the new entity; may be left empty");
  effect.setPosition = in.flag(3, true, ".SetPosition", "Sets the position");
  effect.position =
      in.vector(4, "0 0 0", "Position", "x y z, each a number or a variable, or svar(name) of such a text");
  effect.setRotation = in.flag(5, true, "SetRotation", "Sets the rotation");
  effect.rotation = in.vector(6, "0 0 0", ".Rotation", "Angles x y z in degrees");
  effect.spawnPointUnit = in.list(7, "", "SpawnPointUnit", "Unit from which position and rotation are taken instead");
}

/// The transform to copy; null if no unit is named or if it doesn't exist.
static const qsf::TransformComponent* findSpawnPoint(const SpawnObjectEffect& effect, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(effect.spawnPointUnit);
  if (effect.spawnPointUnit == "" || ids.empty()) return nullptr;
  const qsf::Entity* unit = findEntity(ids.front());
  return unit ? unit->getComponent<qsf::TransformComponent>() : nullptr;
}

static void placeByParameters(const SpawnObjectEffect& effect, ScenarioHandler& handler,
                              qsf::TransformComponent& transform) {
  glm::vec3 position = transform.getPosition();
  glm::quat rotation = transform.getRotation();
  if (effect.setPosition) {
    if (const std::optional<glm::vec3> given = splitVector(handler, effect.position))
      position = *given;
    else
      logInfo("SetTransformEffect: cant read your Position argument.");
  }
  if (effect.setRotation) {
    if (const std::optional<glm::vec3> degrees = splitVector(handler, effect.rotation))
      rotation = rotationFromDegrees(*degrees);
    else
      logInfo("SetTransformEffect: cant read your Rotation argument.");
  }
  transform.setPositionAndRotation(position, rotation);
}

static void run(const SpawnObjectEffect& effect, ScenarioHandler& handler) {
  qsf::Entity* entity = spawnPrefab(handler.ResolveString(effect.localAssetName));
  if (!entity) return;
  const std::string& list = effect.addToEntityList.text();
  if (list != "empty_list" && list != " " && !list.empty())
    handler.AddToEntityList(effect.addToEntityList, entity->getId());
  auto* transform = entity->getOrCreateComponent<qsf::TransformComponent>();
  const qsf::TransformComponent* spawnPoint = findSpawnPoint(effect, handler);
  if (!spawnPoint) return placeByParameters(effect, handler, *transform);
  if (effect.setPosition) transform->setPosition(spawnPoint->getPosition());
  if (effect.setRotation) transform->setRotation(spawnPoint->getRotation());
}

EFFECT(SpawnObject, "Units", "Creates an entity from a prefab and places it")

}
