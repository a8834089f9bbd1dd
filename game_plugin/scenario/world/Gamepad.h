#pragma once
#include <cstddef>
#include <optional>
#include <string>

namespace script {

/// The gamepad as it is now. Each answer is nothing, or false, while none is plugged in.
bool hasGamepad();
std::optional<std::string> gamepadVendor();
/// Whether the button of that index, from 0, is down; one that the gamepad lacks is up.
std::optional<bool> gamepadButton(std::size_t index);
/// The direction of the first POV, as OIS numbers it.
std::optional<int> gamepadDirection();
/// From -1 to 1. Nothing for an axis that the gamepad lacks, too.
std::optional<float> gamepadAxis(std::size_t index);

}
