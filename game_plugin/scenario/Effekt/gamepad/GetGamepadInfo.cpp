#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"

namespace script {

struct GetGamepadInfoEffect : DefaultEffect {};

static void read(GetGamepadInfoEffect&, ParameterReader&) {}

static void tell(std::size_t index, const qsf::InputControl& control, const std::string& state) {
  logInfo(std::to_string(index) + "Name -" + control.getName() + "- Is Pressed; " + state + " Description -" +
          control.getDescription());
}

static void run(const GetGamepadInfoEffect&, ScenarioHandler&) {
  const std::optional<std::string> vendor = gamepadVendor();
  if (!vendor) return logInfo("no gamepad was found!");
  logInfo("Joystick was found with the Id: 0 and the vendor " + *vendor);
  logInfo("these buttons where found ");
  const qsf::JoystickDevice& joystick = qsf::Qsf::instance()->getInputSystem().getJoystick();
  for (std::size_t i = 0; i < joystick.getButtons().size(); ++i)
    tell(i, *joystick.getButtons()[i], joystick.getButtons()[i]->isPressed() ? "1" : "0");
  for (std::size_t i = 0; i < joystick.getAxes().size(); ++i)
    tell(i, *joystick.getAxes()[i], floatToText(joystick.getAxes()[i]->getValue()));
}

EFFECT(GetGamepadInfo, "InputEvents", "Sets the rotation")

}
