#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct SimulateClickAtGUIButtonEffect : DefaultEffect {
  Argument documentName;
  Argument elementName;
};

static void read(SimulateClickAtGUIButtonEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementName = in.of(ParameterRole::ELEMENT, 2, "MyElementName", "ElemtentName", EXISTING_DOCUMENT_TEXT);
}

static void run(const SimulateClickAtGUIButtonEffect& effect, ScenarioHandler&) {
  if (GUIEventListener::get()) GUIEventListener::SimulateButtonClick(effect.documentName, effect.elementName);
}

EFFECT(SimulateClickAtGUIButton, "GUI", "")

}
