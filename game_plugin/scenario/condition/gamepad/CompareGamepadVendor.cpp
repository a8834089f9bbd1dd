#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/Gamepad.h"

namespace script {

struct CompareGamepadVendorCondition : DefaultCondition {
  Argument vendor;
};

static void read(CompareGamepadVendorCondition& condition, ParameterReader& in) {
  condition.vendor = in.text(1, "Wireless Gamepad", "Vendor", "");
}

static bool test(const CompareGamepadVendorCondition& condition, ScenarioHandler& handler) {
  const std::optional<std::string> vendor = gamepadVendor();
  return vendor && handler.ResolveString(condition.vendor) == *vendor;
}

CONDITION(
    CompareGamepadVendor, "InputEvents",
    "Gets the vendor of your currently used gamepad, use GetGamepadInfo for the information about the attached one")

}
