#include "em5/multiplayer/NetworkTransport.h"

#include "qsf/game/BitStream.h"

#include <charconv>
#include <stdexcept>

namespace em5::multiplayer {

namespace {

/// First of every greeting: another program's packets, and those of another version, are none of ours.
constexpr std::uint32_t MAGIC = 0x54494401; // "TID", version 1
constexpr unsigned int TEXT_BITS = 20;
constexpr unsigned int MOST_OTHERS = 4;

std::uint16_t parsePort(const std::string& text) {
  std::uint16_t port = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (fault != std::errc() || end != text.data() + text.size())
    throw std::invalid_argument("'" + text + "' is no port; one is a number up to 65535");
  return port;
}

}

NetworkAddress NetworkAddress::parse(const std::string& text) {
  NetworkAddress address;
  if (text.empty()) return address;
  const std::size_t colon = text.rfind(':');
  if (colon != std::string::npos) {
    address.port = parsePort(text.substr(colon + 1));
    if (colon > 0) address.host = text.substr(0, colon);
  } else if (text.find_first_not_of("0123456789") == std::string::npos) {
    address.port = parsePort(text);
  } else {
    address.host = text;
  }
  return address;
}

namespace detail {

std::vector<std::uint8_t> NetworkPacket::encode() const {
  qsf::game::BitStream stream;
  stream.write(static_cast<std::uint8_t>(kind));
  if (kind == Kind::HELLO) stream.write(MAGIC);
  if (kind == Kind::ACCEPT || kind == Kind::JOINED || kind == Kind::LEFT) stream.write(player);
  if (kind == Kind::ACCEPT) {
    stream.write(static_cast<std::uint8_t>(others.size()));
    for (const std::uint8_t other : others)
      stream.write(other);
  }
  if (kind == Kind::HELLO || kind == Kind::ACCEPT || kind == Kind::REFUSE) stream.write(text, TEXT_BITS);
  std::vector<std::uint8_t> bytes = stream.getBytes();
  if (kind == Kind::MESSAGE) bytes.insert(bytes.end(), envelope.begin(), envelope.end());
  return bytes;
}

std::optional<NetworkPacket> NetworkPacket::decode(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0 || size > Envelope::MOST_BYTES + 64) return std::nullopt;
  if (bytes[0] < static_cast<std::uint8_t>(Kind::HELLO) || bytes[0] > static_cast<std::uint8_t>(Kind::MESSAGE))
    return std::nullopt;
  NetworkPacket packet;
  packet.kind = static_cast<Kind>(bytes[0]);
  if (packet.kind == Kind::MESSAGE) {
    packet.envelope.assign(bytes + 1, bytes + size);
    return packet;
  }
  qsf::game::BitStream stream({bytes + 1, bytes + size}, (size - 1) * 8);
  std::uint32_t magic = 0;
  if (packet.kind == Kind::HELLO && (!stream.read(magic) || magic != MAGIC)) return std::nullopt;
  const bool hasPlayer = packet.kind == Kind::ACCEPT || packet.kind == Kind::JOINED || packet.kind == Kind::LEFT;
  if (hasPlayer && !stream.read(packet.player)) return std::nullopt;
  if (packet.kind == Kind::ACCEPT) {
    std::uint8_t count = 0;
    if (!stream.read(count) || count > MOST_OTHERS) return std::nullopt;
    packet.others.resize(count);
    for (std::uint8_t& other : packet.others)
      if (!stream.read(other)) return std::nullopt;
  }
  const bool hasText = packet.kind == Kind::HELLO || packet.kind == Kind::ACCEPT || packet.kind == Kind::REFUSE;
  if (hasText && !stream.read(packet.text, TEXT_BITS)) return std::nullopt;
  return packet;
}

}

}
