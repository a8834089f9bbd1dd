#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/localization/LocalizationSystem.h"

namespace script {

struct TranslateStringEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Left out, the id is that of the string variable \"my_value)\", with a bracket.",
  };

  Argument text;
  Argument context;
  Argument output;
};

static void read(TranslateStringEffect& effect, ParameterReader& in) {
  effect.text = in.of(ParameterRole::TEXT_ID, 1, "svar(my_value)", "StringWhichShallBeTranslated", "Id of the text");
  effect.context = in.text(2, "infotexts", "Translation_Context", "Context that the id belongs to");
  effect.output =
      in.stringVariableOut(3, "stringvar_out", "Output_as_stringvar", "Becomes the text in the player's language");
}

static void run(const TranslateStringEffect& effect, ScenarioHandler& handler) {
  std::string translated;
  if (const qsf::Qsf* host = qsf::Qsf::instance()) {
    const std::string text = handler.ResolveString(effect.text);
    translated = host->getLocalizationSystem().translateByContextString(handler.ResolveString(effect.context), text);
  }
  handler.SetStringVariable(effect.output, translated);
}

EFFECT(TranslateString, "GUI", "Writes a text of the translations, in the player's language, to a string variable")

}
