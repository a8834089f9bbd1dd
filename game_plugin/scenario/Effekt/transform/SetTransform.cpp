#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/component/TransformComponent.h"

namespace script {

struct SetTransformEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A unit to copy from has no influence while it exists: the parameters apply; one that doesn't exist ends the "
      "effect.",
      "A position that can't be read costs three lines in the log for each entity, one of them in the words of "
      "ExecuteCommand.",
  };

  Argument entityList;
  bool setPosition = true;
  Argument position;
  bool setRotation = false;
  Argument rotation;
  Argument copiedUnit;
};

static void read(SetTransformEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "empty_list", "EntityList", "Entities to place");
  effect.setPosition = in.flag(2, true, ".SetPosition", "Sets the position");
  effect.position =
      in.vector(3, "0 0 0", "Position", "x y z, each a number or a variable, or svar(name) of such a text");
  effect.setRotation = in.flag(4, false, "SetRotation", "Sets the rotation");
  effect.rotation = in.vector(5, "0 0 0", ".Rotation", "Angles x y z in degrees");
  effect.copiedUnit = in.list(6, "", "CopyTransformationFromUnit",
                              "Has no influence while that unit exists. Without it, the effect ends");
}

/// Only a unit that doesn't exist is one to copy from, and there is nothing to copy.
static bool wouldCopyFromMissingUnit(const SetTransformEffect& effect, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(effect.copiedUnit);
  return !ids.empty() && !findEntity(ids.front());
}

static void setPosition(const SetTransformEffect& effect, ScenarioHandler& handler,
                        qsf::TransformComponent* transform) {
  if (const std::optional<glm::vec3> position = splitVector(handler, effect.position)) {
    if (transform) transform->setPosition(*position);
    return;
  }
  logInfo("ExecuteCommandEffect: cant read your Position argument.");
  logInfo("SetTransformEffect: cant read your Position argument. Expected 3 parameters (like \"100.5 0 70\")  and "
          "got " +
          std::to_string(splitParts(handler, effect.position).size()) + " parameters");
}

/// Unlike the position, the rotation is only split here, so that a bad one has this one line.
static void setRotation(const SetTransformEffect& effect, ScenarioHandler& handler,
                        qsf::TransformComponent* transform) {
  const std::vector<std::string> parts = splitParts(handler, effect.rotation);
  if (parts.size() != 3)
    logInfo("SetTransformEffect: cant read your Rotation argument. Expected 3 parameters (like \"90.0 0 90\") and "
            "got " +
            std::to_string(parts.size()) + " parameters");
  else if (transform)
    transform->setRotation(rotationFromDegrees(resolveParts(handler, parts)));
}

static void run(const SetTransformEffect& effect, ScenarioHandler& handler) {
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    const qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    auto* transform = entity->getComponent<qsf::TransformComponent>();
    if (wouldCopyFromMissingUnit(effect, handler)) return;
    if (effect.setPosition) setPosition(effect, handler, transform);
    if (effect.setRotation) setRotation(effect, handler, transform);
  }
}

EFFECT(SetTransform, "Units", "Puts entities at a place and turns them")

}
