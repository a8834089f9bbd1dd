#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Hotkey.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct IsHotkeyPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A line whose key the keyboard doesn't have is dropped.",
      "Keys that effects only simulate don't count: the keyboard itself is asked.",
  };

  std::uint64_t keyIndex = 0;
};

static bool read(IsHotkeyPressedCondition& condition, ParameterReader& in) {
  return findHotkey(in, in.of(ParameterRole::KEY, 1, "B", "Hotkey", ""), condition.keyIndex);
}

static bool test(const IsHotkeyPressedCondition& condition, ScenarioHandler&) {
  return isHotkeyPressed(condition.keyIndex);
}

CONDITION(IsHotkeyPressed, "InputEvents",
          "Returns true when the button is HOLD (OnHotKeyPressed returns true when the State of the Key changes from "
          "NotPressed to Pressed - thats a huge difference). Notice that Shortcuts in editor have priority which makes "
          "some buttons being ignored")

}
