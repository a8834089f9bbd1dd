#pragma once
#include "qsf/game/BitStream.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace em5::multiplayer {

/// What travels between two machines of a session, and the one form in which it travels, whatever lies underneath.
struct QSF_API Envelope {
  enum class Kind : std::uint8_t {
    OPERATION = 1,  ///< `number` is the operation message's
    DATA_CACHE = 2, ///< an update of the data cache; `number` is its tick
  };
  Kind kind = Kind::OPERATION;
  std::uint8_t sender = 0; ///< player index of the machine it comes from
  std::uint32_t number = 0;
  qsf::game::BitStream stream;

  /// The longest stream that is taken, in bytes: 255 lists of an instruction are far below.
  static constexpr std::size_t MOST_BYTES = 256 * 1024;

  std::vector<std::uint8_t> encode() const;
  /// Nothing for bytes that are no envelope: another kind, a length that is not that of the rest, more than MOST_BYTES.
  static std::optional<Envelope> decode(const std::uint8_t* bytes, std::size_t size);
};

/// The road between this machine and the others of its session: reliable, in order. What is underneath (a network, a
/// simulated one) is the implementation's. Owned by the session.
class QSF_API Transport {
public:
  virtual ~Transport() = default;
  /// To the machine with that player index; nothing happens if it isn't there.
  virtual void send(std::uint8_t receiver, const Envelope& envelope) = 0;

  struct Event {
    enum class Kind { MESSAGE, JOINED, LEFT } kind = Kind::MESSAGE;
    std::uint8_t player = 0; ///< whose connection it came on, who joined or left
    Envelope envelope;       ///< of a message
  };
  /// What has happened since the last call, in its order: by ascending player within a frame.
  virtual std::vector<Event> receive() = 0;
  /// Everything sent goes out now; called at the end of each frame.
  virtual void flush() {}
};

}
