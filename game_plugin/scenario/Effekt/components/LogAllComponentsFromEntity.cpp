#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ComponentWalk.h"

#include <camp/class.hpp>

namespace script {

struct LogAllComponentsFromEntityEffect : DefaultEffect {
  Argument entityList;
};

static void read(LogAllComponentsFromEntityEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "Component", "Units which has the Component");
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
