#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <boost/algorithm/string/case_conv.hpp>

#include <locale>

namespace script {

struct CreateAudioTrackerEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Any text but true and false, in whatever case, is a number or a variable: above 0 creates, else destroys.",
  };

  Argument createTracker;
};

static void read(CreateAudioTrackerEffect& effect, ParameterReader& in) {
  effect.createTracker = in.number(1, "true", "CreateTracker(or destroy[false])",
                                   "true or false, or a number or variable, which creates when it is above 0");
}

static bool isWanted(const CreateAudioTrackerEffect& effect, ScenarioHandler& handler) {
  const std::string word = boost::algorithm::to_lower_copy(effect.createTracker.text(), std::locale::classic());
  if (word == "true" || word == "false") return word == "true";
  return handler.ResolveFloat(effect.createTracker) > 0.0f;
}

static void run(const CreateAudioTrackerEffect& effect, ScenarioHandler& handler) {
  const bool wanted = isWanted(effect, handler);
  if (GuiInstanceManager* manager = GuiInstanceManager::get()) manager->switchTracker(wanted);
  logInfo(wanted ? "do sth 1" : "do sth 0");
}

EFFECT(CreateAudioTracker, "GUI",
       "Creates or destroys an audio tracker window. Does nothing if you call it multiple times")

}
