#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SetInnerRMLFromExistingGUIEffect : DefaultEffect {
  Argument documentName;
  Argument elementId;
  Argument value;
};

static void read(SetInnerRMLFromExistingGUIEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_id", "ElementId", "The Id of the element");
  effect.value = in.text(3, "no_value", "Value", "The text, which may hold RML, or svar(name)");
}

static void run(const SetInnerRMLFromExistingGUIEffect& effect, ScenarioHandler& handler) {
  if (GUIEventListener::get())
    GUIEventListener::SetInnerRML(effect.documentName, effect.elementId, handler.ResolveString(effect.value));
}

EFFECT(SetInnerRMLFromExistingGUI, "GUI", "Modifys an element attribute from an allready managed source.")

}
