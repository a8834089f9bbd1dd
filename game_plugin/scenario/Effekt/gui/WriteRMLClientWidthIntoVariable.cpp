#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <Rocket/Core/ElementDocument.h>

namespace script {

struct WriteRMLClientWidthIntoVariableEffect : DefaultEffect {
  Argument documentName;
  Argument elementName;
  Argument outputVariable;
};

static void read(WriteRMLClientWidthIntoVariableEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementName = in.of(ParameterRole::ELEMENT, 2, "MyElementName", "ElemtentName", EXISTING_DOCUMENT_TEXT);
  effect.outputVariable = in.variableOut(3, "MyFloatVar", "OutputVar", EXISTING_DOCUMENT_TEXT);
}

static void run(const WriteRMLClientWidthIntoVariableEffect& effect, ScenarioHandler& handler) {
  if (!GUIEventListener::get()) return;
  Rocket::Core::ElementDocument* document = GUIEventListener::findElementDocument(effect.documentName);
  Rocket::Core::Element* element = document ? document->GetElementById(effect.elementName.text()) : nullptr;
  if (element) handler.SetFloatVariable(effect.outputVariable, element->GetClientWidth());
}

EFFECT(WriteRMLClientWidthIntoVariable, "GUI", "")

}
