#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"

#include "game_plugin/scenario/Log.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace script {

namespace {

constexpr const char* NO_GAMEPAD = "no gamepad was found!";

/// The number that a text begins with, 0 if it begins with none; a huge one is the nearest that fits.
std::int64_t leadingNumber(std::string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  return std::clamp<std::int64_t>(std::strtoll(std::string(text).c_str(), nullptr, 10), Limits::min(), Limits::max());
}

}

GamepadIndex readGamepadIndex(ParameterReader& in, std::string_view text, std::size_t GamepadLayout::*count,
                              const GamepadIndexFaults& faults) {
  if (in.isDescribing()) return {};
  const std::optional<GamepadLayout> gamepad = in.builder().host().gamepad();
  const std::int64_t index = leadingNumber(text) - 1;
  if (!gamepad)
    in.builder().log(LOG_INFO, NO_GAMEPAD);
  else if (index < 0)
    in.builder().log(LOG_INFO, std::string(faults.tooLow));
  else if (index > static_cast<std::int64_t>((*gamepad).*count))
    in.builder().log(LOG_INFO, std::string(faults.tooHigh));
  else
    return {static_cast<std::uint32_t>(index), true};
  return {};
}

GamepadDirection readGamepadDirection(ParameterReader& in) {
  const ParameterText text =
      in.words(1, "North", "Hotkey", "Use North,South,East,West,Northeast,Northwest,Southeast,Southwest or None",
               wordsOf<GAMEPAD_DIRECTIONS>());
  if (in.isDescribing()) return {};
  if (!in.builder().host().gamepad()) {
    in.builder().log(LOG_INFO, NO_GAMEPAD);
    return {};
  }
  if (const std::optional<int> direction = lookUp(GAMEPAD_DIRECTIONS, text)) return {*direction, true};
  in.builder().log(LOG_ERROR, std::string(text) +
                                  ": noticed that the direction is not available. Use North,South,East,West,Northwest,"
                                  "Northeast,Southwest,Southeast or None!");
  return {};
}

}
