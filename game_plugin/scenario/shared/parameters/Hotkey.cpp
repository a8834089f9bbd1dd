#include "game_plugin/scenario/shared/parameters/Hotkey.h"

#include "game_plugin/scenario/program/ProgramBuilder.h"

#include "qsf/Qsf.h"
#include "qsf/input/InputSystem.h"

#include <algorithm>

namespace script {

bool findHotkey(ParameterReader& in, std::string_view hotkey, std::uint64_t& index) {
  if (in.isDescribing()) return true;
  const std::vector<KeyboardKey> keys = in.builder().host().keyboardKeys();
  const auto found = std::ranges::find_if(
      keys, [&](const KeyboardKey& key) { return key.description == hotkey || key.name == hotkey; });
  if (found == keys.end()) return false;
  index = static_cast<std::uint64_t>(found - keys.begin());
  in.builder().useKey(found->name);
  return true;
}

bool isHotkeyPressed(std::uint64_t index) {
  const std::vector<qsf::InputButton*>& keys = qsf::Qsf::instance()->getInputSystem().getKeyboard().getButtons();
  return index < keys.size() && keys[index]->isPressed();
}

}
