#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Reflection.h"

#include <stdexcept>

namespace script {

struct Editor_SetPropertyOverrideFlagEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The component that is meant if none is named is misspelled: no entity has a qsf::MetaDataComponent.",
      "All properties are meant by All, not by -All-.",
  };

  Argument entityList;
  Argument component;
  Argument property;
};

static void read(Editor_SetPropertyOverrideFlagEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "new_unit", "Entity List", "Entities whose properties are marked");
  effect.component = in.component(2, "qsf::MetaDataComponent", "Only overwritting -All- is supported for now",
                                  "Class name of a component");
  effect.property =
      in.property(3, 2, "Name", "either -All- or use a specific component property name", "The property, or All");
}

static void run(const Editor_SetPropertyOverrideFlagEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](const qsf::Entity& entity) {
    const std::string className = handler.ResolveString(effect.component);
    qsf::Component* component = findComponent(entity, className);
    if (!component) {
      if (hints::isOn()) hintUnknownComponent(className);
      return;
    }
    const std::string property = handler.ResolveString(effect.property);
    if (property == "All") return component->setAllPropertyOverrideFlags(true);
    component->setPropertyOverrideState(qsf::StringHash(property), qsf::InheritedObject::OVERRIDDEN);
    if (hints::isOn() && !component->getCampClass().hasProperty(property))
      hintFailedAccess(*component, property, std::invalid_argument("there is none"));
  });
}

EFFECT(Editor_SetPropertyOverrideFlag, "Editor", "Create a unit but in editor")

}
