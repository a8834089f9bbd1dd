#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/game/BoneToBoneLinkComponent.h"

namespace script {

struct LinkEntityToParentEffect : DefaultEffect {
  Argument children;
  Argument parentEntity;
};

static void read(LinkEntityToParentEffect& effect, ParameterReader& in) {
  effect.children = in.list(1, "no_list", "EntityList[Childs]", "Entities that become children");
  effect.parentEntity = in.list(2, "no_list", "ParentEntity", "Entity below which they are linked");
}

static void link(qsf::Entity& child, std::uint64_t parentId) {
  auto* link = child.getOrCreateComponent<qsf::LinkComponent>();
  link->setParentId(parentId);
  if (link->getParentId() != parentId && hints::isOn())
    hints::tell(HintKind::LINK, "entity " + std::to_string(child.getId()) + " can't be linked below " +
                                    std::to_string(parentId) + ", which is below it");
  link->setParentLinkType(0);
  // A bone link looks for its parent when it starts.
  if (auto* boneLink = child.getComponent<qsf::game::BoneToBoneLinkComponent>()) {
    boneLink->shutdown();
    boneLink->startup(true);
  }
}

static void run(const LinkEntityToParentEffect& effect, ScenarioHandler& handler) {
  const EntityIds parents = handler.ResolveEntityList(effect.parentEntity);
  const qsf::Entity* parent = parents.empty() ? nullptr : findEntity(parents.front());
  if (!parent) return;
  forEachEntity(handler, effect.children, [&](qsf::Entity& child) {
    if (&child != parent) link(child, parent->getId());
  });
}

EFFECT(LinkEntityToParent, "Units", "Links entities below another one, whose moves they follow from then on")

}
