#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct DoLogEntryEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The level has to stand in capitals: \"info\" writes nothing.",
  };

  Argument severityLevel;
  Argument message;
};

/// The host's numbers of the severities.
static constexpr Word<int> SEVERITIES[] = {
    {"TRACE", 0}, {"DEBUG", 1}, {"INFO", 2}, {"WARNING", 3}, {"ERROR", 4}, {"NONE", 5},
};

static void read(DoLogEntryEffect& effect, ParameterReader& in) {
  effect.severityLevel =
      in.words(1, "INFO", "SeverityLevel", "(TRACE, DEBUG, INFO, WARNING, ERROR, NONE)", wordsOf<SEVERITIES>());
  effect.message = in.text(2, "No Message inside", "Message", "Text, or svar(name)");
}

static void run(const DoLogEntryEffect& effect, ScenarioHandler& handler) {
  const std::string message = handler.ResolveString(effect.message);
  if (const std::optional<int> severity = lookUp(SEVERITIES, handler.ResolveString(effect.severityLevel)))
    logMessage(*severity, message);
}

EFFECT(DoLogEntry, "General", "Writes a message to the log. An unknown level writes nothing")

}
