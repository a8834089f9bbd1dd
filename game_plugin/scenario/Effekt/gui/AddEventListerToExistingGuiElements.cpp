#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct AddEventListerToExistingGuiElementsEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Elements of one id in two documents press each other's buttons.",
      "A second time for one element activates the trigger twice per click.",
  };

  Argument documentName;
  Argument elementId;
  Argument triggerName;
};

static void read(AddEventListerToExistingGuiElementsEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
  effect.elementId = in.of(ParameterRole::ELEMENT, 2, "no_id", "ElementId", "The Id of the element");
  effect.triggerName = in.trigger(3, "trigger_1", "TriggerName", "The trigger which is activated by a click");
}

static void run(const AddEventListerToExistingGuiElementsEffect& effect, ScenarioHandler& handler) {
  if (GUIEventListener* listener = GUIEventListener::get())
    listener->AddButtonEvent(effect.documentName, effect.elementId, effect.triggerName, handler);
}

EFFECT(AddEventListerToExistingGuiElements, "GUI",
       "Adds an eventlistener (like a button click) to an existing gui element like a main menu window.")

}
