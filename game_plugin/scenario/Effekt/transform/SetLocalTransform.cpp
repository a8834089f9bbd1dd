#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/LinkComponent.h"

namespace script {

struct SetLocalTransformEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A position or rotation of fewer than three parts is a fault that ends the script's tick; more than three are "
      "not looked at.",
      "If the parent doesn't exist, position and rotation are set all the same.",
  };

  Argument entityList;
  Argument parentEntity;
  bool setPosition = true;
  Argument position;
  bool setRotation = true;
  Argument rotation;
};

static void read(SetLocalTransformEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that become children");
  effect.parentEntity = in.list(2, "no_list", "ParentEntity", "Entity below which they are linked");
  effect.setPosition = in.flag(3, true, "SetPosition", "Sets the position relative to the parent");
  effect.position =
      in.vector(4, "0 0 0", "Position", "x y z, each a number or a variable, or svar(name) of such a text");
  effect.setRotation = in.flag(5, true, "SetRotation", "Sets the rotation relative to the parent");
  effect.rotation = in.vector(6, "0 0 0", "Rotation", "Angles x y z in degrees");
}

static void attach(const SetLocalTransformEffect& effect, ScenarioHandler& handler, qsf::Entity& child) {
  auto* link = child.getOrCreateComponent<qsf::LinkComponent>();
  const EntityIds parents = handler.ResolveEntityList(effect.parentEntity);
  if (const qsf::Entity* parent = parents.empty() ? nullptr : findEntity(parents.front())) {
    if (parent->getId() == child.getId()) return; // the parent itself may stand in the list
    link->setParentId(parent->getId());
    link->setParentLinkType(0);
  }
  if (effect.setPosition) link->setLocalPosition(resolveParts(handler, splitParts(handler, effect.position)));
  if (effect.setRotation)
    link->setLocalRotation(rotationFromDegrees(resolveParts(handler, splitParts(handler, effect.rotation))));
}

static void run(const SetLocalTransformEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "SetLocalTransformEffect::EntityList was not found")) return;
  if (isLeftAt(effect.parentEntity.text(), "no_list", "SetLocalTransformEffect::ParentEntity was not found")) return;
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& child) { attach(effect, handler, child); });
}

EFFECT(SetLocalTransform, "Units", "Links entities below another one and places them relative to it")

}
