#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"

#include "em5/gui/HintHelper.h"

namespace script {

struct SendHintEffect : DefaultEffect {
  Argument message = "Message";
};

static void read(SendHintEffect& effect, const Tokens& tokens) {
  effect.message = readStringParameter(tokens, 1, "", "Hint", "Message which will be displayed.");
}

static void run(const SendHintEffect& effect, ScenarioHandler& handler) {
  em5::HintHelper::showHint(handler.ResolveString(effect.message), qsf::getUninitialized<std::uint32_t>(),
                            qsf::Time::ZERO);
}

EFFECT(SendHint, "General", "Sends a hint message. Supervisor is not visible")

}
