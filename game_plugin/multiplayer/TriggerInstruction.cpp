#include "game_plugin/multiplayer/TriggerInstruction.h"

#include "qsf/game/BitStream.h"

namespace script::multiplayer {

void TriggerInstruction::write(qsf::game::BitStream& stream) const {
  stream.write(true);
  stream.write(hash, 32);
  stream.write(player, 8);
  stream.write(static_cast<std::uint8_t>(callers.size()), 8);
  for (const std::uint64_t caller : callers)
    stream.write(caller, 64);
  stream.write(target, 64);
}

bool TriggerInstruction::read(qsf::game::BitStream& stream) {
  std::uint8_t count = 0;
  if (!stream.read(hash, 32) || !stream.read(player, 8) || !stream.read(count, 8)) return false;
  callers.clear();
  for (unsigned int i = 0; i < count; ++i) {
    std::uint64_t caller = 0;
    if (!stream.read(caller, 64)) return false;
    callers.push_back(caller);
  }
  return stream.read(target, 64);
}

}
