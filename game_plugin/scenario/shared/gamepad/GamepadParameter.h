#pragma once
#include "game_plugin/scenario/language/WordTable.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace script {

/// A button or an axis that a line names, from 0. It is checked once, when the line is read, against the gamepad that
/// is plugged in then; what isn't valid then never is.
struct GamepadIndex {
  std::uint32_t value = 0;
  bool valid = false;
};

/// A direction of the POV that a line names, checked in the same way.
struct GamepadDirection {
  int value = 0;
  bool valid = false;
};

/// The messages about an index that can't be.
struct GamepadIndexFaults {
  std::string_view tooLow;
  std::string_view tooHigh;
};

/// The words for directions, and how OIS numbers them.
inline constexpr Word<int> GAMEPAD_DIRECTIONS[] = {
    {"North", 0x0001},     {"South", 0x0010},     {"East", 0x0100},      {"West", 0x1000}, {"Northeast", 0x0101},
    {"Northwest", 0x1001}, {"Southeast", 0x0110}, {"Southwest", 0x1010}, {"None", 0},
};

/// The index of a text that counts from 1. One above the count of controls passes, as it always did; such a control is
/// never down. Not valid, with a message, without a gamepad.
GamepadIndex readGamepadIndex(ParameterReader& in, std::string_view text, std::size_t GamepadLayout::*count,
                              const GamepadIndexFaults& faults);
/// The parameter `Hotkey` of the entries about the POV.
GamepadDirection readGamepadDirection(ParameterReader& in);

}
