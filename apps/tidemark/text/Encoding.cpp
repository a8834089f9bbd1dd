#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>

namespace tidemark {

namespace {

// Bytes 0x80 to 0x9F of the code page; 0 where it has no character.
constexpr std::array<std::uint32_t, 32> HIGH_CONTROLS = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr std::uint32_t REPLACEMENT = 0xFFFD;

std::optional<char> toCodePage(std::uint32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const auto found = std::find(HIGH_CONTROLS.begin(), HIGH_CONTROLS.end(), character);
  if (found == HIGH_CONTROLS.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - HIGH_CONTROLS.begin()));
}

std::uint32_t fromCodePage(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  const std::uint32_t character = code >= 0x80 && code < 0xA0 ? HIGH_CONTROLS[code - 0x80u] : code;
  return character ? character : REPLACEMENT;
}

bool isControl(std::uint32_t character) { return character < 0x20 || (character >= 0x7F && character < 0xA0); }

}

bool isUtf8(std::string_view text) { return utf8::is_valid(text.begin(), text.end()); }

std::string toUtf8(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  std::string result;
  for (const char byte : text)
    utf8::append(fromCodePage(byte), std::back_inserter(result));
  return result;
}

std::size_t displayWidth(std::string_view text) {
  return static_cast<std::size_t>(utf8::distance(text.begin(), text.end()));
}

std::string toCell(std::string_view text, std::size_t longest) {
  std::string cell;
  std::size_t characters = 0;
  for (auto next = text.begin(); next != text.end();) {
    if (++characters > longest) return cell + "...";
    const std::uint32_t character = utf8::next(next, text.end());
    utf8::append(isControl(character) ? std::uint32_t{'?'} : character, std::back_inserter(cell));
  }
  return cell;
}

std::string toXmlText(std::string_view text) {
  const std::string utf8Text = toUtf8(text);
  std::string result;
  for (auto next = utf8Text.begin(); next != utf8Text.end();) {
    const std::uint32_t character = utf8::next(next, utf8Text.end());
    const bool allowed = character == '\t' || character == '\n' ||
                         (character >= 0x20 && character != 0x7F && character != 0xFFFE && character != 0xFFFF);
    utf8::append(allowed ? character : std::uint32_t{'?'}, std::back_inserter(result));
  }
  return result;
}

std::string convertToCodePage1252(std::string_view text) {
  if (utf8::starts_with_bom(text.begin(), text.end())) text.remove_prefix(std::size(utf8::bom));
  std::string result;
  result.reserve(text.size());
  std::size_t line = 1;
  const auto invalid = utf8::find_invalid(text.begin(), text.end());
  for (auto next = text.begin(); next != invalid;) {
    const std::uint32_t character = utf8::next(next, invalid);
    const auto byte = toCodePage(character);
    if (!byte)
      throw std::invalid_argument(fmt::format("line {} holds U+{:04X}, which the code page lacks", line, character));
    line += character == '\n';
    result += *byte;
  }
  if (invalid != text.end()) throw std::invalid_argument(fmt::format("line {} is no UTF-8", line));
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
