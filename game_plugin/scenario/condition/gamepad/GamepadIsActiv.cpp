#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

namespace script {

struct GamepadIsActivCondition : DefaultCondition {};

static void read(GamepadIsActivCondition&, ParameterReader&) {}

static bool test(const GamepadIsActivCondition&, ScenarioHandler&) { return hasGamepad(); }

CONDITION(GamepadIsActiv, "InputEvents", "True if a Gamepad was found")

}
