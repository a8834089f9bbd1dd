#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/localization/LocalizationSystem.h"

namespace script {

struct SetLanguageEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Forced, a language that no project has is taken, too: texts then show their ids.",
  };

  Argument language;
  bool force = true;
};

static void read(SetLanguageEffect& effect, ParameterReader& in) {
  effect.language = in.text(1, "de", "Language", "Language of the game's texts, \"de\" or \"en\"");
  effect.force = in.flag(2, true, "force", "Takes the language even if no project has texts in it");
}

static void run(const SetLanguageEffect& effect, ScenarioHandler& handler) {
  const std::string language = handler.ResolveString(effect.language);
  if (!qsf::Qsf::instance()->getLocalizationSystem().setLanguage(language, effect.force))
    logError("Script was not able to set the language to " + language);
}

EFFECT(SetLanguage, "Units", "Sets the language of the game's texts")

}
