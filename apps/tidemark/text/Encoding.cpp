#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <stdexcept>

namespace tidemark {

namespace {

// Bytes 0x80 to 0x9F of the code page; 0 where it has no character.
constexpr std::array<std::uint32_t, 32> HIGH_CONTROLS = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Reads one character and moves behind it; nothing for bytes that are no UTF-8.
std::optional<std::uint32_t> readCharacter(std::string_view text, std::size_t& position) {
  const auto byteAt = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char first = byteAt(position);
  const int following = first < 0x80                    ? 0
                        : first >= 0xC2 && first < 0xE0 ? 1
                        : (first & 0xF0) == 0xE0        ? 2
                        : first >= 0xF0 && first < 0xF5 ? 3
                                                        : -1;
  if (following < 0 || position + static_cast<std::size_t>(following) >= text.size()) return std::nullopt;
  std::uint32_t character = following == 0 ? first : first & (0x3Fu >> following);
  for (int i = 0; i < following; ++i) {
    const unsigned char next = byteAt(position + 1 + static_cast<std::size_t>(i));
    if ((next & 0xC0) != 0x80) return std::nullopt;
    character = character << 6 | (next & 0x3Fu);
  }
  position += 1 + static_cast<std::size_t>(following);
  return character;
}

std::optional<char> toCodePage(std::uint32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(HIGH_CONTROLS.begin(), HIGH_CONTROLS.end(), character);
  if (found == HIGH_CONTROLS.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - HIGH_CONTROLS.begin()));
}

std::uint32_t fromCodePage(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  const std::uint32_t character = code >= 0x80 && code < 0xA0 ? HIGH_CONTROLS[code - 0x80u] : code;
  return character ? character : 0xFFFD;
}

void appendUtf8(std::string& text, std::uint32_t character) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | character >> 12);
    text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

}

bool isUtf8(std::string_view text) {
  for (std::size_t position = 0; position < text.size();)
    if (!readCharacter(text, position)) return false;
  return true;
}

std::string toUtf8(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  std::string result;
  for (const char byte : text)
    appendUtf8(result, fromCodePage(byte));
  return result;
}

std::size_t displayWidth(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

std::string convertToCodePage1252(std::string_view utf8) {
  if (utf8.starts_with("\xEF\xBB\xBF")) utf8.remove_prefix(3);
  std::string result;
  result.reserve(utf8.size());
  std::size_t line = 1;
  for (std::size_t position = 0; position < utf8.size();) {
    const auto character = readCharacter(utf8, position);
    if (!character) throw std::invalid_argument(fmt::format("line {} is no UTF-8", line));
    const auto byte = toCodePage(*character);
    if (!byte)
      throw std::invalid_argument(fmt::format("line {} holds U+{:04X}, which the code page lacks", line, *character));
    line += *character == '\n';
    result += *byte;
  }
  return result;
}

std::string convertToCarriageReturns(std::string_view text) {
  std::string result;
  result.reserve(text.size() + text.size() / 16);
  for (const char character : text) {
    if (character == '\n' && !result.ends_with('\r')) result += '\r';
    result += character;
  }
  return result;
}

}
