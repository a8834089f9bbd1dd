#include "qsf/game/BitStream.h"

#include <algorithm>

namespace qsf::game {

namespace {

/// The longest start of the text that has at most so many bytes and doesn't end inside a UTF-8 character.
std::size_t cutLength(const std::string& text, std::size_t most) {
  if (text.size() <= most) return text.size();
  std::size_t length = most;
  const auto isInside = [&](std::size_t at) { return (static_cast<unsigned char>(text[at]) & 0xC0u) == 0x80u; };
  while (length > 0 && most - length < 4 && isInside(length))
    --length;
  return isInside(length) ? most : length; // no UTF-8: any place is as good
}

template <typename NUMBER> bool assign(bool read, NUMBER& value, std::uint64_t bits) {
  if (read) value = static_cast<NUMBER>(bits);
  return read;
}

}

BitStream::BitStream(std::vector<std::uint8_t> bytes, std::size_t bits)
    : mBytes(std::move(bytes)), mBits(std::min(bits, mBytes.size() * 8)) {
  mBytes.resize((mBits + 7) / 8);
  if (mBits % 8 != 0) mBytes.back() &= static_cast<std::uint8_t>(0xFFu << (8 - mBits % 8));
}

void BitStream::writeBits(std::uint64_t value, unsigned int bits) {
  while (bits > 0) {
    const unsigned int used = mBits % 8;
    if (used == 0) mBytes.push_back(0);
    const unsigned int part = std::min(8 - used, bits);
    const auto chunk = static_cast<unsigned int>((value >> (bits - part)) & ((1u << part) - 1u));
    mBytes.back() |= static_cast<std::uint8_t>(chunk << (8 - used - part));
    mBits += part;
    bits -= part;
  }
}

bool BitStream::readBits(std::uint64_t& value, unsigned int bits) {
  if (bits > getRemainingBits()) return false;
  std::uint64_t result = 0;
  while (bits > 0) {
    const unsigned int used = mPosition % 8;
    const unsigned int part = std::min(8 - used, bits);
    const unsigned int chunk = (mBytes[mPosition / 8] >> (8 - used - part)) & ((1u << part) - 1u);
    result = (result << part) | chunk;
    mPosition += part;
    bits -= part;
  }
  value = result;
  return true;
}

void BitStream::write(bool value) { writeBits(value ? 1 : 0, 1); }
void BitStream::write(std::uint8_t value, unsigned int bits) { writeBits(value, std::min(bits, 8u)); }
void BitStream::write(std::uint16_t value, unsigned int bits) { writeBits(value, std::min(bits, 16u)); }
void BitStream::write(std::uint32_t value, unsigned int bits) { writeBits(value, std::min(bits, 32u)); }
void BitStream::write(std::uint64_t value, unsigned int bits) { writeBits(value, std::min(bits, 64u)); }

void BitStream::write(const std::string& text, unsigned int lengthBits) {
  const unsigned int bits = std::clamp(lengthBits, 1u, 32u);
  const std::size_t length = cutLength(text, (std::uint64_t{1} << bits) - 1);
  writeBits(length, bits);
  for (std::size_t i = 0; i < length; ++i)
    writeBits(static_cast<unsigned char>(text[i]), 8);
}

void BitStream::append(const BitStream& other) {
  const std::size_t whole = other.mBits / 8;
  const std::size_t rest = other.mBits % 8;
  for (std::size_t i = 0; i < whole; ++i)
    writeBits(other.mBytes[i], 8);
  if (rest > 0)
    writeBits(static_cast<unsigned int>(other.mBytes[whole]) >> (8 - rest), static_cast<unsigned int>(rest));
}

bool BitStream::read(bool& value) {
  std::uint64_t bits = 0;
  if (!readBits(bits, 1)) return false;
  value = bits != 0;
  return true;
}

bool BitStream::read(std::uint8_t& value, unsigned int bits) {
  std::uint64_t number = 0;
  return assign(readBits(number, std::min(bits, 8u)), value, number);
}

bool BitStream::read(std::uint16_t& value, unsigned int bits) {
  std::uint64_t number = 0;
  return assign(readBits(number, std::min(bits, 16u)), value, number);
}

bool BitStream::read(std::uint32_t& value, unsigned int bits) {
  std::uint64_t number = 0;
  return assign(readBits(number, std::min(bits, 32u)), value, number);
}

bool BitStream::read(std::uint64_t& value, unsigned int bits) {
  std::uint64_t number = 0;
  return assign(readBits(number, std::min(bits, 64u)), value, number);
}

bool BitStream::read(std::string& text, unsigned int lengthBits) {
  const std::size_t start = mPosition;
  std::uint64_t length = 0;
  // The count is held against what is left before memory is taken.
  if (!readBits(length, std::clamp(lengthBits, 1u, 32u)) || length > getRemainingBits() / 8) {
    mPosition = start;
    return false;
  }
  std::string result(static_cast<std::size_t>(length), '\0');
  for (char& character : result) {
    std::uint64_t byte = 0;
    if (!readBits(byte, 8)) return false;
    character = static_cast<char>(byte);
  }
  text = std::move(result);
  return true;
}

bool BitStream::read(BitStream& part, std::size_t bits) {
  if (bits > getRemainingBits()) return false;
  BitStream result;
  for (std::size_t left = bits; left > 0;) {
    const auto chunk = static_cast<unsigned int>(std::min<std::size_t>(left, 64));
    std::uint64_t value = 0;
    if (!readBits(value, chunk)) return false;
    result.writeBits(value, chunk);
    left -= chunk;
  }
  part = std::move(result);
  return true;
}

}
