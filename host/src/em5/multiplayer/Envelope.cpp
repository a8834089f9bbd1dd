#include "em5/multiplayer/Transport.h"

namespace em5::multiplayer {

namespace {

constexpr std::size_t HEAD = 1 + 1 + 4 + 4;

void put(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
  for (int shift = 24; shift >= 0; shift -= 8)
    bytes.push_back(static_cast<std::uint8_t>(value >> shift));
}

std::uint32_t get(const std::uint8_t* bytes) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i)
    value = (value << 8) | bytes[i];
  return value;
}

}

std::vector<std::uint8_t> Envelope::encode() const {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(HEAD + stream.getBytes().size());
  bytes.push_back(static_cast<std::uint8_t>(kind));
  bytes.push_back(sender);
  put(bytes, number);
  put(bytes, static_cast<std::uint32_t>(stream.getNumberOfBits()));
  bytes.insert(bytes.end(), stream.getBytes().begin(), stream.getBytes().end());
  return bytes;
}

std::optional<Envelope> Envelope::decode(const std::uint8_t* bytes, std::size_t size) {
  if (size < HEAD || size - HEAD > MOST_BYTES) return std::nullopt;
  if (bytes[0] != static_cast<std::uint8_t>(Kind::OPERATION) && bytes[0] != static_cast<std::uint8_t>(Kind::DATA_CACHE))
    return std::nullopt;
  const std::uint64_t bits = get(bytes + 6);
  if ((bits + 7) / 8 != size - HEAD) return std::nullopt;
  Envelope envelope;
  envelope.kind = static_cast<Kind>(bytes[0]);
  envelope.sender = bytes[1];
  envelope.number = get(bytes + 2);
  envelope.stream = qsf::game::BitStream({bytes + HEAD, bytes + size}, static_cast<std::size_t>(bits));
  return envelope;
}

}
