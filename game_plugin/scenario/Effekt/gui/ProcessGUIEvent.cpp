#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ProcessGUIEventEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The third parameter is the type of the event, click for example, and no id.",
      "Only the element itself gets the event: listeners and the elements around it don't hear of it.",
  };

  Argument documentName;
  Argument elementName;
  Argument eventType;
};

static void read(ProcessGUIEventEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementName = in.of(ParameterRole::ELEMENT, 2, "MyElementName", "ElemtentName", EXISTING_DOCUMENT_TEXT);
  effect.eventType = in.raw(3, "My_String_Id", "id_of_my_element", EXISTING_DOCUMENT_TEXT);
}

static void run(const ProcessGUIEventEffect& effect, ScenarioHandler&) {
  if (GUIEventListener::get())
    GUIEventListener::ProcessGUIEvent(effect.documentName, effect.elementName, effect.eventType);
}

EFFECT(ProcessGUIEvent, "GUI", "")

}
