#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qsf::game {

/// Values packed bit by bit: what machines of a session tell each other. Written at its end, read from its start; each
/// read is checked against what is left, so a stream from outside can be read without knowing what it holds. The
/// highest bit of a byte, and of a number, comes first. A value.
class QSF_API BitStream {
public:
  BitStream() = default;
  /// What has arrived. More bits than the bytes hold are cut to those.
  BitStream(std::vector<std::uint8_t> bytes, std::size_t bits);

  /// One bit.
  void write(bool value);
  /// The lowest `bits` bits of the value, at most as many as the type has.
  void write(std::uint8_t value, unsigned int bits = 8);
  void write(std::uint16_t value, unsigned int bits = 16);
  void write(std::uint32_t value, unsigned int bits = 32);
  void write(std::uint64_t value, unsigned int bits = 64);
  /// The length in bytes as a number of `lengthBits` (1 to 32) bits, then the bytes, without an end mark. A text longer
  /// than that number can tell is cut, at the end of a UTF-8 character.
  void write(const std::string& text, unsigned int lengthBits);
  /// All bits of another stream.
  void append(const BitStream& other);

  /// False if fewer bits are left than asked for; then nothing is read and the value stays.
  [[nodiscard]] bool read(bool& value);
  [[nodiscard]] bool read(std::uint8_t& value, unsigned int bits = 8);
  [[nodiscard]] bool read(std::uint16_t& value, unsigned int bits = 16);
  [[nodiscard]] bool read(std::uint32_t& value, unsigned int bits = 32);
  [[nodiscard]] bool read(std::uint64_t& value, unsigned int bits = 64);
  [[nodiscard]] bool read(std::string& text, unsigned int lengthBits);
  /// The next bits as a stream of their own.
  [[nodiscard]] bool read(BitStream& part, std::size_t bits);

  std::size_t getNumberOfBits() const { return mBits; }
  std::size_t getRemainingBits() const { return mBits - mPosition; }
  /// The last byte is filled up with zeros.
  const std::vector<std::uint8_t>& getBytes() const { return mBytes; }

private:
  void writeBits(std::uint64_t value, unsigned int bits);
  bool readBits(std::uint64_t& value, unsigned int bits);

  std::vector<std::uint8_t> mBytes;
  std::size_t mBits = 0;
  std::size_t mPosition = 0;
};

}
