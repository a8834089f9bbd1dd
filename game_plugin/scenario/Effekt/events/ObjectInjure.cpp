#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/events/FindScenarioEvent.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/component/HealthComponent.h"

namespace script {

struct ObjectInjureEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without the event nobody is injured.",
  };

  Argument uniqueId;
  Argument entityList;
  Argument injuryName;
  bool collapse = true;
};

static void read(ObjectInjureEffect& effect, ParameterReader& in) {
  effect.uniqueId = in.number(1, "-1", "UniqueId", "Id of the Event which it should belong to");
  effect.entityList = in.list(2, "no_entitylist", "EntityList", "List of Objects we want to injure");
  effect.injuryName = in.words(3, "BURN_3_GRADE", "InjuryName", "(EM5 Injuries e.g ->\"BURN_3_GRADE\")", injuryWords());
  effect.collapse = in.flag(4, true, "Collapse", "If true, the object will lay at the ground");
}

static void run(const ObjectInjureEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintLiteralIds(effect.entityList);
  const EntityIds ids = handler.ResolveEntityList(effect.entityList);
  for (const std::uint64_t id : ids) {
    qsf::Entity* entity = findEntity(id);
    auto* health = entity ? entity->getComponent<em5::HealthComponent>() : nullptr;
    if (!health) continue;
    ScenarioEvent* event = findScenarioEvent(handler, effect.uniqueId);
    if (!event) return;
    const auto injury = ToInjury(effect.injuryName.text());
    if (injury) health->injurePersonByEventById(*injury, event, effect.collapse);
  }
}

EFFECT(ObjectInjure, "Events", "Injure an Object")

}
