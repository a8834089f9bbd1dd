#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/ElementsOfDocuments.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <Rocket/Core/Element.h>

namespace script {

struct SetInnerRMLEffect : DefaultEffect {
  Argument uniqueId;
  Argument elementId;
  Argument newText;
};

static void read(SetInnerRMLEffect& effect, ParameterReader& in) {
  effect.uniqueId = readUniqueId(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_element", "ElementId", "The Id of the element");
  effect.newText = in.text(3, "You forgot sth", "New Text", "The text, which may hold RML, or svar(name)");
}

static void run(const SetInnerRMLEffect& effect, ScenarioHandler& handler) {
  forEachElement(effect.uniqueId, effect.elementId,
                 [&](Rocket::Core::Element& element) { element.SetInnerRML(handler.ResolveString(effect.newText)); });
}

EFFECT(SetInnerRML, "GUI", "Sets the text which is BETWEEN your Element")

}
