#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/ElementsOfDocuments.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <Rocket/Core/Element.h>

namespace script {

struct AddOrRemoveClassEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "It only adds: no parameter tells to remove the class.",
      "An element that isn't found is told in the name of SetInnerRML.",
  };

  Argument uniqueId;
  Argument elementId;
  Argument className;
  bool add = true;
};

static void read(AddOrRemoveClassEffect& effect, ParameterReader& in) {
  effect.uniqueId = readUniqueId(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_element", "ElementId", "The Id of the element");
  effect.className = in.raw(3, "no_element", "ClassName", "ClassName which shall be added");
}

static void run(const AddOrRemoveClassEffect& effect, ScenarioHandler&) {
  forEachElement(effect.uniqueId, effect.elementId,
                 [&](Rocket::Core::Element& element) { element.SetClass(effect.className.text(), effect.add); });
}

EFFECT(AddOrRemoveClass, "GUI", "Sets an attribute like the position or the size")

}
