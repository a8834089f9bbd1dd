#pragma once
#include <cstdint>
#include <vector>

namespace qsf::game {
class BitStream;
}

namespace script::multiplayer {

/// What of a trigger crosses the network.
struct TriggerInstruction {
  std::uint32_t hash = 0;
  std::uint8_t player = 0; ///< on whose behalf
  std::vector<std::uint64_t> callers;
  std::uint64_t target = 0;

  /// The count of callers is cut to 8 bits while all are written: the field of the wire is as wide as that.
  void write(qsf::game::BitStream& stream) const;
  /// Behind the kind bit. False if the stream breaks off; nothing is to be applied then.
  bool read(qsf::game::BitStream& stream);
};

}
