#include "game_plugin/gui/ScenarioBasicGui.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ShowTextEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "ActivateTrigger has no influence: when the text goes, no trigger is switched on.",
      "With a TotalTime below twice the FadeTime, the text goes before it has faded out, and a message says so when "
      "the "
      "script is loaded.",
      "Any Effect but 0 types the text; with a FadeTime of 0 such a text stays empty.",
  };

  Argument elementId;
  Argument message;
  float fadeTime = 7;
  int effect = 1;
  float totalTime = 7;
  Argument style;
  Argument activateTrigger;
};

static void read(ShowTextEffect& effect, ParameterReader& in) {
  effect.elementId =
      in.of(ParameterRole::ELEMENT, 1, "big_text", "ElementId", "Element that shows the text: big_text or small_text");
  effect.message = in.text(2, "ERROR MESSAGE IS MISSING", "Message", "The text, which may hold RML");
  effect.fadeTime =
      in.decimal(3, 7, "FadeTime", "Seconds in which the text comes up, and in which it goes, or is typed");
  effect.effect = truncateToInt(in.decimal(4, 1, "Effect", "0-> the text fades in and out\n1-> the text is typed"));
  effect.totalTime = in.decimal(5, 7, "TotalTime", "Seconds from the beginning until the text is gone");
  effect.style = in.text(6, "", "Style", "Style of the element, as in \"color: #ff0000; font-size: 30px;\"");
  effect.activateTrigger = in.of(ParameterRole::UNUSED, 7, "", "ActivateTrigger", "Trigger for the end of the text");
  if (!in.isDescribing() && 2 * effect.fadeTime > effect.totalTime)
    in.builder().log(LOG_INFO, "ShowText: 2*FadeTime is higher as the TotalTime. Make sure to fix it");
}

static void run(const ShowTextEffect& effect, ScenarioHandler& handler) {
  ScenarioBasicGui* gui = ScenarioBasicGui::get();
  if (!gui) return;
  // Copies: the next argument may move what a string variable's text lies in.
  const std::string elementId = handler.ResolveString(effect.elementId);
  const std::string message = handler.ResolveString(effect.message);
  const std::string style = handler.ResolveString(effect.style);
  const std::string trigger = handler.ResolveString(effect.activateTrigger);
  gui->ShowText(elementId, message, effect.fadeTime, effect.totalTime, style, effect.effect, trigger);
}

EFFECT(ShowText, "GUI", "Shows a text for some time, which fades in and out or types itself")

}
