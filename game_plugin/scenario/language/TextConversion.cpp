#include "game_plugin/scenario/language/TextConversion.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>

#include <cstdio>

namespace script {

bool textToFloat(const std::string& text, float& value) {
  // Most texts are names; a cheap look at the first character spares the conversion. "inf", "nan" and signs stay
  // possible.
  if (text.empty()) return false;
  const char first = text.front();
  const bool canStart = (first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.' ||
                        first == 'i' || first == 'I' || first == 'n' || first == 'N';
  float result = 0;
  if (!canStart || !boost::conversion::try_lexical_convert(text, result)) return false;
  value = result;
  return true;
}

bool textToIds(const std::string& text, std::vector<std::uint64_t>& ids) {
  if (text.empty()) return false;
  const char first = text.front();
  if (!((first >= '0' && first <= '9') || first == '-' || first == '+')) return false;
  for (const std::string& piece : splitAtBlanks(text)) {
    std::uint64_t id = 0;
    if (!boost::conversion::try_lexical_convert(piece, id)) return false;
    ids.push_back(id);
  }
  return true;
}

std::vector<std::string> splitAtBlanks(const std::string& text) {
  std::vector<std::string> pieces;
  boost::algorithm::split(pieces, text, boost::algorithm::is_any_of(" "), boost::algorithm::token_compress_on);
  return pieces;
}

std::string floatToText(float value) {
  char buffer[32];
  const int length = std::snprintf(buffer, sizeof buffer, "%g", static_cast<double>(value));
  return std::string(buffer, static_cast<std::size_t>(length));
}

}
