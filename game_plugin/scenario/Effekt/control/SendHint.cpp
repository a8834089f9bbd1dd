#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/HintHelper.h"

namespace script {

struct SendHintEffect : DefaultEffect {
  Argument message;
};

static void read(SendHintEffect& effect, ParameterReader& in) {
  effect.message = in.text(1, "", "Hint", "Message which will be displayed.");
}

static void run(const SendHintEffect& effect, ScenarioHandler& handler) {
  em5::HintHelper::showHint(handler.ResolveString(effect.message), qsf::getUninitialized<std::uint32_t>(),
                            qsf::Time::ZERO);
}

EFFECT(SendHint, "General", "Sends a hint message. Supervisor is not visible")

}
