#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

struct ShowChoiceDialogueEffect : DefaultEffect {
  Argument headline;
  Argument text;
  Argument button1Name;
  Argument trigger1;
  Argument button2Name;
  Argument trigger2;
};

static void read(ShowChoiceDialogueEffect& effect, ParameterReader& in) {
  effect.headline = in.text(1, "no_headline", "Headline", "Headline of the dialogue");
  effect.text = in.text(2, "no_text", "Text", "What the player is asked");
  effect.button1Name = in.text(3, "no_buttonname", "Button1_name", "Text of the first button");
  effect.trigger1 = in.trigger(4, "Trigger1", "Trigger_of_Button_1", "Trigger that the first button activates");
  effect.button2Name = in.text(5, "no_buttonname", "Button2_name", "Text of the second button");
  effect.trigger2 = in.trigger(6, "Trigger2", "Trigger_of_Button_2", "Trigger that the second button activates");
}

static void run(const ShowChoiceDialogueEffect& effect, ScenarioHandler& handler) {
  ScenarioBasicGui* gui = ScenarioBasicGui::get();
  if (!gui) return;
  gui->setHandler(&handler);
  gui->ShowChoiceDialogue(effect.headline, effect.text, effect.button1Name, effect.trigger1, effect.button2Name,
                          effect.trigger2);
}

EFFECT(ShowChoiceDialogue, "GUI", "Asks the player with two buttons; each activates a trigger and closes the dialogue")

}
