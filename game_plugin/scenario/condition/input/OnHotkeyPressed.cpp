#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Hotkey.h"
#include "game_plugin/scenario/shared/parameters/PressEdge.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct OnHotkeyPressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A line whose key the keyboard doesn't have is dropped.",
      "A press that begins and ends between two evaluations isn't seen. One that began while a condition above failed "
      "is seen as long as the key is down.",
      "Keys that effects only simulate don't count: the keyboard itself is asked.",
  };

  std::uint64_t keyIndex = 0;
  RunState<PressEdge> pressEdge;
};

static bool read(OnHotkeyPressedCondition& condition, ParameterReader& in) {
  const std::string_view hotkey =
      in.of(ParameterRole::KEY, 1, "B", "Hotkey",
            "Single Letters must be uppercase! Examples: \"A\", \"Numpad0\",\"Plus\", \"LeftShift\", \" 8\", "
            "\"Numpad8\").Notice that Shortcuts in editor have priority which makes some buttons being ignored");
  condition.pressEdge = in.state<PressEdge>();
  return findHotkey(in, hotkey, condition.keyIndex);
}

static bool test(const OnHotkeyPressedCondition& condition, ScenarioHandler& handler) {
  return handler.stateOf(condition.pressEdge).update(isHotkeyPressed(condition.keyIndex));
}

CONDITION(OnHotkeyPressed, "InputEvents",
          "True if the Hotkey is pressed, Will always return false until the hotkey has been released")

}
