#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/components/ComponentWalk.h"

#include <camp/class.hpp>

namespace script {

struct LogAllComponentsFromEntityEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The parameter is called Component, but takes the entities.",
  };

  Argument entityList;
};

static void read(LogAllComponentsFromEntityEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "Component", "Units which has the Component");
}

static void run(const LogAllComponentsFromEntityEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [](const qsf::Entity& entity) {
    logInfo("Components of Entity " + std::to_string(entity.getId()) + ":");
    for (const qsf::Component* component : entity.getComponents())
      logInfo(component->getCampClass().name());
  });
}

EFFECT(LogAllComponentsFromEntity, "Components", "Writes all Components of the current EntityList into the Log")

}
