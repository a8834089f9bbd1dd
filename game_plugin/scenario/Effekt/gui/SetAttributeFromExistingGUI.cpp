#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetAttributeFromExistingGUIEffect : DefaultEffect {
  Argument documentName;
  Argument elementId;
  Argument attributeName;
  Argument value;
};

static void read(SetAttributeFromExistingGUIEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_id", "ElementId", "The Id of the element");
  effect.attributeName = in.text(3, "no_id", "AttributeName", "The attribute, style for example");
  effect.value = in.text(4, "no_value", "Value", "Its new value");
}

static void run(const SetAttributeFromExistingGUIEffect& effect, ScenarioHandler& handler) {
  if (!GUIEventListener::get()) return;
  const std::string& value = handler.ResolveString(effect.value);
  GUIEventListener::SetAttribute(effect.documentName, effect.elementId, handler.ResolveString(effect.attributeName),
                                 value);
}

EFFECT(SetAttributeFromExistingGUI, "GUI", "Modifys an element attribute from an allready managed source.")

}
