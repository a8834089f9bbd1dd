#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

namespace script {

struct AbortVideoEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Whoever hears the key Escape hears it, be there a video or not.",
  };
};

static void read(AbortVideoEffect& /*effect*/, ParameterReader& /*in*/) {}

static void run(const AbortVideoEffect& /*effect*/, ScenarioHandler&) {
  qsf::InputSystem& input = qsf::Qsf::instance()->getInputSystem();
  const qsf::InputButton* escape = input.getKeyboard().findButton("Escape");
  if (!escape) return;
  for (const bool pressed : {true, false})
    input.addEventToInputQueue(std::make_unique<qsf::KeyboardEvent>(*escape, pressed));
}

EFFECT(AbortVideo, "GUI",
       "Aborts a Video. Notice this is done by simulating a hotkeypress of \"Escape\" and there is no check if the "
       "video is currently playing")

}
