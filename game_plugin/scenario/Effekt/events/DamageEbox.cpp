#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/Spawn.h"

#include "em5/component/EboxComponent.h"
#include "em5/component/EventIdComponent.h"
#include "em5/component/UsableByEngineerComponent.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/TransformComponent.h"

namespace script {

struct DamageEboxEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without the event the box breaks all the same; it then counts for nothing.",
  };

  Argument uniqueId;
  Argument entityList;
  Argument gapeChance;
  Argument gapeRadius;
};

static void read(DamageEboxEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "EventId");
  effect.entityList = in.list(2, "no_entitylist", "EntityList", "Object which represents the broken Box.");
  effect.gapeChance = in.number(3, "0", "GapeChance", "If > 0, the ebox can attract people which moves to the ebox");
  effect.gapeRadius = in.number(4, "0", "GapeRadius", "How large is the radius from which entities are attracted");
}

/// The id of particles that were made above the entity and hang on it; the former one if there are some.
static std::uint64_t makeParticles(qsf::Entity& entity, std::uint64_t former, const char* prefab) {
  constexpr float HEIGHT = 0.8f;
  if (former != qsf::UNINITIALIZED_ID) return former;
  qsf::Entity* particles = spawnPrefab(prefab);
  if (!particles) return former;
  particles->getOrCreateComponent<qsf::TransformComponent>()->setPosition(positionOf(entity) + glm::vec3(0, HEIGHT, 0));
  auto* link = particles->getOrCreateComponent<qsf::LinkComponent>();
  link->setParentId(entity.getId());
  link->setParentLinkType(0);
  return particles->getId();
}

static void waitForRepair(qsf::Entity& entity, ScenarioEvent& event) {
  constexpr const char* REPAIR = "build_ebox";
  constexpr int PART_OF_EVENT = 1;
  event.addEntityToEvent(entity, PART_OF_EVENT, true);
  entity.getOrCreateComponent<EventTargetComponent>()->add(REPAIR);
  entity.getOrCreateComponent<em5::EventIdComponent>()->addToEvent(event, PART_OF_EVENT);
  em5::Objective& objective = event.getOrCreateObjective(REPAIR);
  objective.setText("EM5_EVENTOBJECTIVE_38");
  objective.increaseNeededNumber(&entity);
}

static void run(const DamageEboxEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    auto* ebox = entity.getOrCreateComponent<em5::EboxComponent>();
    ebox->setEboxDefectiveWithGaping(handler.ResolveFloat(effect.gapeChance), handler.ResolveFloat(effect.gapeRadius));
    ebox->setLightningEntity(makeParticles(entity, ebox->getLightningEntity(), "em5/prefab/particles/ebox_lightning"));
    ebox->setSparksEntity(makeParticles(entity, ebox->getSparksEntity(), "em5/prefab/particles/ebox_funken"));
    entity.getOrCreateComponent<em5::UsableByEngineerComponent>();
    if (ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId)) waitForRepair(entity, *event);
  });
}

EFFECT(DamageEbox, "Events",
       "Sets a ebox (or other entities) in damaged state. Will create the ebox-component if it does not exist")

}
