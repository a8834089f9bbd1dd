#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/localization/LocalizationSystem.h"

namespace script {

struct GetLanguageCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The text is compared as it stands, small letters and capitals apart: the default, DE, isn't de.",
  };

  Argument language;
};

static void read(GetLanguageCondition& condition, ParameterReader& in) {
  condition.language = in.text(1, "DE", "Language", "The Language");
}

static bool test(const GetLanguageCondition& condition, ScenarioHandler& handler) {
  return qsf::Qsf::instance()->getLocalizationSystem().getLanguage() == handler.ResolveString(condition.language);
}

CONDITION(GetLanguage, "GUI", "Checks if the user has the given language")

}
