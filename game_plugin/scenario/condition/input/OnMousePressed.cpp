#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/PressEdge.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

#include <algorithm>

namespace script {

struct OnMousePressedCondition : DefaultCondition {
  std::string mouseButton;
  std::size_t buttonIndex = 0;
  mutable PressEdge pressEdge;
};

/// Kept: the button is the first one whose description doesn't hold the swapped text. Swap and inverted test cancel
/// out for "Left" and "Right"; any other text, which isn't swapped, picks a button as scripts know it: "Middle" is the
/// left one. A text that every description holds, such as the empty one, refuses the line.
static bool read(OnMousePressedCondition& condition, const Tokens& tokens) {
  condition.mouseButton =
      readStringParameter(tokens, 1, "Right", "MouseButton", "hich mouseButton should be used.<br>Right, Left");
  if (isDocumenting()) return true;
  if (condition.mouseButton == "Right")
    condition.mouseButton = "Left";
  else if (condition.mouseButton == "Left")
    condition.mouseButton = "Right";

  if (!qsf::Qsf::instance()) return false;
  const std::vector<qsf::InputButton*>& buttons = qsf::Qsf::instance()->getInputSystem().getMouse().getButtons();
  const auto found = std::find_if(buttons.begin(), buttons.end(), [&](const qsf::InputButton* button) {
    return button->getDescription().find(condition.mouseButton) == std::string::npos;
  });
  condition.buttonIndex = static_cast<std::size_t>(found - buttons.begin());
  return found != buttons.end();
}

static bool test(const OnMousePressedCondition& condition, ScenarioHandler&) {
  const qsf::MouseDevice& mouse = qsf::Qsf::instance()->getInputSystem().getMouse();
  return condition.pressEdge.update(mouse.getButtons()[condition.buttonIndex]->isPressed());
}

CONDITION(OnMousePressed, "InputEvents", "Check if certain mouseButton is pressed")

}
