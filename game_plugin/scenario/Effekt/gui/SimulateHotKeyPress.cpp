#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Hotkey.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

namespace script {

struct SimulateHotKeyPressEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Conditions on hotkeys don't see it: they ask the keyboard, on which nothing is pressed.",
      "A key that the keyboard doesn't have is passed over, without a word.",
  };

  std::uint64_t keyIndex = 0;
  bool press = true;
};

static void read(SimulateHotKeyPressEffect& effect, ParameterReader& in) {
  effect.keyIndex =
      findKeyIndex(in, in.of(ParameterRole::KEY, 1, "B", "Hotkey", "The key, by what stands on it or by its name"));
  effect.press = in.flag(2, true, "PressIt", "true to press the key, false to release it");
}

static void run(const SimulateHotKeyPressEffect& effect, ScenarioHandler&) {
  qsf::InputSystem& input = qsf::Qsf::instance()->getInputSystem();
  const std::vector<qsf::InputButton*>& keys = input.getKeyboard().getButtons();
  if (effect.keyIndex < keys.size())
    input.addEventToInputQueue(std::make_unique<qsf::KeyboardEvent>(*keys[effect.keyIndex], effect.press));
}

EFFECT(SimulateHotKeyPress, "Hotkeys", "Simulates that a hotkey was pressed")

}
