#include "game_plugin/scenario/shared/parameters/Hotkey.h"

#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

#include <algorithm>

namespace script {

namespace {

std::size_t findKey(const std::vector<KeyboardKey>& keys, std::string_view hotkey) {
  const auto found = std::ranges::find_if(
      keys, [&](const KeyboardKey& key) { return key.description == hotkey || key.name == hotkey; });
  return static_cast<std::size_t>(found - keys.begin());
}

}

bool findHotkey(ParameterReader& in, std::string_view hotkey, std::uint64_t& index) {
  if (in.isDescribing()) return true;
  const std::vector<KeyboardKey> keys = in.builder().host().keyboardKeys();
  const std::size_t found = findKey(keys, hotkey);
  if (found == keys.size()) return false;
  index = found;
  in.builder().useKey(keys[found].name);
  return true;
}

std::uint64_t findKeyIndex(ParameterReader& in, std::string_view hotkey) {
  if (in.isDescribing()) return 0;
  const std::vector<KeyboardKey> keys = in.builder().host().keyboardKeys();
  const std::size_t found = findKey(keys, hotkey);
  if (found == keys.size() && hints::isOn()) {
    std::vector<std::string_view> names;
    for (const KeyboardKey& key : keys)
      names.push_back(key.name);
    hints::tell(HintKind::WORD, "the keyboard has no key \"" + std::string(hotkey) + "\"; nothing is pressed",
                hints::nearest(hotkey, names));
  }
  return found;
}

bool isHotkeyPressed(std::uint64_t index) {
  const std::vector<qsf::InputButton*>& keys = qsf::Qsf::instance()->getInputSystem().getKeyboard().getButtons();
  return index < keys.size() && keys[index]->isPressed();
}

}
