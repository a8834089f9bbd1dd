#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/DivingSpotComponent.h"
#include "em5/component/EventIdComponent.h"
#include "qsf/component/MetadataComponent.h"

namespace script {

struct AddDivingSpotToEventEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A spot with \"fake\" in its name can be searched, but counts for nothing; so does every spot without the event.",
      "The objective's text is German in every language.",
  };

  Argument uniqueId;
  Argument entityList;
};

static void read(AddDivingSpotToEventEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "EventId");
  effect.entityList = in.list(2, "no_entitylist", "EntityList", "Object which the diving spot");
}

static bool isFake(const qsf::Entity& spot) {
  const auto* metadata = spot.getComponent<qsf::MetadataComponent>();
  return metadata && metadata->getName().find("fake") != std::string::npos;
}

static void waitForSearch(qsf::Entity& spot, ScenarioEvent& event) {
  constexpr int PART_OF_EVENT = 1;
  em5::Objective& objective = event.getOrCreateObjective("diving_spot");
  objective.setText("Suchen sie mit einem Taucher nach Personen und Objekten (%d / %d)");
  objective.increaseNeededNumber(&spot);
  spot.getOrCreateComponent<em5::EventIdComponent>()->addToEvent(event, PART_OF_EVENT);
}

static void run(const AddDivingSpotToEventEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    auto* spot = entity.getComponent<em5::DivingSpotComponent>();
    if (!spot) return;
    ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
    spot->setIntact(true, event);
    if (event && !isFake(entity)) waitForSearch(entity, *event);
  });
}

EFFECT(AddDivingSpotToEvent, "Events", "If you want to make people or cars get rescued by a diver, use this one")

}
