#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/HintHelper.h"

namespace script {

struct ShowSupervisorEffect : DefaultEffect {
  Argument message;
  bool audioOnly = false;
};

static void read(ShowSupervisorEffect& effect, ParameterReader& in) {
  effect.message = in.of(ParameterRole::TEXT_ID, 1, "no_string", "MessagPath", "Text or its id");
  effect.audioOnly = in.flag(2, false, "AudioOnly", "The message is heard and doesn't show");
}

static void run(const ShowSupervisorEffect& effect, ScenarioHandler& handler) {
  const std::string message = handler.ResolveString(effect.message);
  if (isLeftAt(message, "no_string", "ShowSupervisorEffect::MessagePath was not found")) return;
  em5::HintHelper::showSupervisorMessage(message, effect.audioOnly);
}

EFFECT(ShowSupervisor, "GUI", "Lets the supervisor tell something")

}
