#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"
#include "game_plugin/scenario/shared/Placeholder.h"
#include "game_plugin/scenario/shared/VectorArgument.h"

#include "qsf/component/LinkComponent.h"

namespace script {

struct SetLocalTransformEffect : DefaultEffect {
  Argument entityList;
  Argument parentEntity;
  bool setPosition = true;
  Argument position;
  bool setRotation = true;
  Argument rotation;
};

static void read(SetLocalTransformEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "Entities that become children");
  effect.parentEntity = readStringParameter(tokens, 2, "no_list", "ParentEntity", "Entity below which they are linked");
  effect.setPosition = readBoolParameter(tokens, 3, true, "SetPosition", "Sets the position relative to the parent");
  effect.position = readStringParameter(tokens, 4, "0 0 0", "Position",
                                        "x y z, each a number or a variable, or svar(name) of such a text");
  effect.setRotation = readBoolParameter(tokens, 5, true, "SetRotation", "Sets the rotation relative to the parent");
  effect.rotation = readStringParameter(tokens, 6, "0 0 0", "Rotation", "Angles x y z in degrees");
}

static void attach(const SetLocalTransformEffect& effect, ScenarioHandler& handler, qsf::Entity& child) {
  auto* link = child.getOrCreateComponent<qsf::LinkComponent>();
  const EntityIds parents = handler.ResolveEntityList(effect.parentEntity);
  if (const qsf::Entity* parent = parents.empty() ? nullptr : findEntity(parents.front())) {
    if (parent->getId() == child.getId()) return; // the parent itself may stand in the list
    link->setParentId(parent->getId());
    link->setParentLinkType(0);
  }
  // Fewer than three parts are a fault that ends the script's tick; more than three are not looked at.
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
