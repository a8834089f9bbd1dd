#include "game_plugin/scenario/language/TextConversion.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string_view>

namespace script {

namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// "12", "-3.5": what scripts write most. The conversion below would go through a stream, which takes forty times as
/// long; both round to the nearest float.
bool isPlainNumber(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  if (text.size() > 20) return false; // neither too large nor too small for a float
  const auto point = std::find_if_not(text.begin(), text.end(), isDigit);
  if (point == text.begin()) return false;
  if (point == text.end()) return true;
  return *point == '.' && point + 1 != text.end() && std::all_of(point + 1, text.end(), isDigit);
}

}

bool textToFloat(const std::string& text, float& value) {
  // Most texts are names; a cheap look at the first character spares the conversion. "inf", "nan" and signs stay
  // possible.
  if (text.empty()) return false;
  const char first = text.front();
  const bool canStart = (first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.' ||
                        first == 'i' || first == 'I' || first == 'n' || first == 'N';
  float result = 0;
  if (isPlainNumber(text)) return std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc();
  if (!canStart || !boost::conversion::try_lexical_convert(text, result)) return false;
  value = result;
  return true;
}

bool textToId(const std::string& text, std::uint64_t& id) {
  std::uint64_t value = 0;
  if (!boost::conversion::try_lexical_convert(text, value)) return false;
  id = value;
  return true;
}

bool textToIds(const std::string& text, std::vector<std::uint64_t>& ids) {
  if (text.empty()) return false;
  const char first = text.front();
  if (!((first >= '0' && first <= '9') || first == '-' || first == '+')) return false;
  for (const std::string& piece : splitAtBlanks(text)) {
    std::uint64_t id = 0;
    if (!textToId(piece, id)) return false;
    ids.push_back(id);
  }
  return true;
}

std::vector<std::string> splitAtBlanks(const std::string& text) {
  // Blanks at the beginning and at the end leave an empty piece there, and so does an empty text.
  std::vector<std::string> pieces;
  std::size_t begin = 0;
  for (std::size_t blank = text.find(' '); blank != std::string::npos; blank = text.find(' ', begin)) {
    pieces.push_back(text.substr(begin, blank - begin));
    begin = std::min(text.find_first_not_of(' ', blank), text.size());
  }
  pieces.push_back(text.substr(begin));
  return pieces;
}

std::string floatToText(float value) {
  char buffer[32];
  const int length = std::snprintf(buffer, sizeof buffer, "%g", static_cast<double>(value));
  return std::string(buffer, static_cast<std::size_t>(length));
}

}
