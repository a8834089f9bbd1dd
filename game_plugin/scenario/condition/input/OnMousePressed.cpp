#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"
#include "game_plugin/scenario/shared/parameters/PressEdge.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

#include <algorithm>

namespace script {

struct OnMousePressedCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "A text other than Right and Left picks the first button whose description doesn't hold it: Middle is the left "
      "one.",
      "A line with an empty text is dropped.",
      "A press that begins and ends between two evaluations isn't seen.",
  };

  std::uint32_t buttonIndex = 0;
  RunState<PressEdge> pressEdge;
};

/// Each word's button is found as the first whose description lacks the other word.
static constexpr Word<std::string_view> OTHER_BUTTONS[] = {{"Right", "Left"}, {"Left", "Right"}};

static bool read(OnMousePressedCondition& condition, ParameterReader& in) {
  const std::string_view mouseButton =
      in.words(1, "Right", "MouseButton", "hich mouseButton should be used.<br>Right, Left", wordsOf<OTHER_BUTTONS>());
  condition.pressEdge = in.state<PressEdge>();
  if (in.isDescribing()) return true;
  const std::string_view lacking = lookUp(OTHER_BUTTONS, mouseButton).value_or(mouseButton);
  const std::vector<std::string> buttons = in.builder().host().mouseButtons();
  const auto found = std::ranges::find_if(
      buttons, [&](const std::string& description) { return description.find(lacking) == std::string::npos; });
  condition.buttonIndex = static_cast<std::uint32_t>(found - buttons.begin());
  return found != buttons.end();
}

static bool test(const OnMousePressedCondition& condition, ScenarioHandler& handler) {
  const qsf::MouseDevice& mouse = qsf::Qsf::instance()->getInputSystem().getMouse();
  return handler.stateOf(condition.pressEdge).update(mouse.getButtons()[condition.buttonIndex]->isPressed());
}

CONDITION(OnMousePressed, "InputEvents", "Check if certain mouseButton is pressed")

}
