#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"

#include <cstdint>

namespace script {

/// Finds the key that a line names, by description or name; of several the first. The index stays. False: the keyboard
/// has none, and the line is to be refused. While parameters are only described, every key is found.
bool findHotkey(ParameterReader& in, std::string_view hotkey, std::uint64_t& index);
/// Index of the key that a line names, by description or name; of several the first. The number of keys if the keyboard
/// has none, which is hinted.
std::uint64_t findKeyIndex(ParameterReader& in, std::string_view hotkey);
/// Whether the key of that index is down now.
bool isHotkeyPressed(std::uint64_t index);

}
