#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

namespace script {

struct MouseWheelIsMovingCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "The variable is set at each evaluation, to 0 while the wheel rests, whatever the condition answers.",
  };

  bool wheelMovesForward;
  bool anyDirection;
  Argument storeValue;
};

static void read(MouseWheelIsMovingCondition& condition, ParameterReader& in) {
  condition.wheelMovesForward = in.flag(1, true, "WheelMovesForward",
                                        "If true, the condition will be true if it is moved forward, else it will "
                                        "return true if it is moved backwards");
  condition.anyDirection = in.flag(2, false, "Any Direction",
                                   "If true, the first parameter is ignored and the condition is true, when the wheel "
                                   "moves in any direction");
  condition.storeValue = in.variableOut(3, "MW_StoreVar", "Mousewheel Store Value",
                                        "The value of the movement is stored in this variable. This will be set even "
                                        "if the condition returns false");
}

static bool test(const MouseWheelIsMovingCondition& condition, ScenarioHandler& handler) {
  const float value = qsf::Qsf::instance()->getInputSystem().getMouse().getWheel().getValue();
  handler.SetFloatVariable(condition.storeValue, value);
  if (condition.anyDirection) return value != 0;
  return condition.wheelMovesForward ? value > 0 : value < 0;
}

CONDITION(MouseWheelIsMoving, "InputEvents", "")

}
