#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/component/Component.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>

namespace script {

struct CreateComponentByIdEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "ComponentName is not the name of a class but the hash of that name, in decimal.",
  };

  Argument entityList;
  Argument componentId; ///< hash of the component's class name, in decimal
};

static void read(CreateComponentByIdEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entity or entityList, which should be affected");
  effect.componentId = in.raw(2, "no_component", "ComponentName", "Id of component");
}

static void run(const CreateComponentByIdEffect& effect, ScenarioHandler& handler) {
  const std::string& text = effect.componentId.text();
  bool created = false;
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList)) {
    qsf::Entity* entity = findEntity(id);
    if (!entity) continue;
    std::uint32_t hash = 0;
    if (!boost::conversion::try_lexical_convert(text, hash)) {
      logInfo("Id " + text + " is an invalid param");
      return;
    }
    const qsf::Component* component = entity->getOrCreateComponentById(qsf::StringHash(hash), true);
    if (component && !created)
      logInfo("Id " + std::to_string(hash) + " belongs to " + component->getCampClass().name());
    created = created || component;
  }
  if (!created) logInfo("Component cant be created" + text);
}

EFFECT(CreateComponentById, "Components", "Create a component by a given Id and log the name if it was possible")

}
