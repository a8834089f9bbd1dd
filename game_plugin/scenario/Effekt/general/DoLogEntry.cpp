#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

#include <array>

namespace script {

struct DoLogEntryEffect : DefaultEffect {
  Argument severityLevel;
  Argument message;
};

static void read(DoLogEntryEffect& effect, const Tokens& tokens) {
  effect.severityLevel =
      readStringParameter(tokens, 1, "INFO", "SeverityLevel", "(TRACE, DEBUG, INFO, WARNING, ERROR, NONE)");
  effect.message = readStringParameter(tokens, 2, "No Message inside", "Message", "Text, or svar(name)");
}

static void run(const DoLogEntryEffect& effect, ScenarioHandler& handler) {
  // The place in the row is the host's number of the severity.
  static constexpr std::array<std::string_view, 6> LEVELS{"TRACE", "DEBUG", "INFO", "WARNING", "ERROR", "NONE"};
  const std::string message = handler.ResolveString(effect.message);
  const std::string& level = handler.ResolveString(effect.severityLevel);
  for (std::size_t severity = 0; severity < LEVELS.size(); ++severity)
    if (LEVELS[severity] == level) logMessage(static_cast<int>(severity), message);
}

EFFECT(DoLogEntry, "General", "Writes a message to the log. An unknown level writes nothing")

}
