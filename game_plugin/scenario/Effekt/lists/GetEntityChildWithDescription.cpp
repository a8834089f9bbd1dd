#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/component/MetadataComponent.h"

namespace script {

struct GetEntityChildWithDescriptionEffect : DefaultEffect {
  Argument entityList;
  Argument entityListOut;
  Argument description;
  bool clearListBefore = true;
};

static void read(GetEntityChildWithDescriptionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList Caller", "Entities whose children are looked at");
  effect.entityListOut = in.listOut(2, "no_list", "EntityList Out", "List that gets the children; may be the same");
  effect.description = in.raw(3, "no_descriotion", "Description", "Text that the child's description contains");
  effect.clearListBefore = in.flag(4, true, "ClearListBefore", "Empties the list before children are added");
}

static void run(const GetEntityChildWithDescriptionEffect& effect, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  if (effect.clearListBefore) handler.ClearEntityList(effect.entityListOut);
  for (const std::uint64_t id : ids) {
    const qsf::Entity* entity = findEntity(id);
    const auto* link = entity ? entity->getComponent<qsf::LinkComponent>() : nullptr;
    if (!link) continue;
    for (const qsf::LinkComponent* child : link->getChildLinks()) {
      const auto* metadata = child->getEntity().getComponent<qsf::MetadataComponent>();
      if (metadata && metadata->getDescription().find(effect.description.text()) != std::string::npos)
        handler.AddToEntityList(effect.entityListOut, child->getEntityId());
    }
  }
}

EFFECT(GetEntityChildWithDescription, "EntityLists",
       "Looks for entities that are linked directly below others and whose description contains a text")

}
