#include "StyleSheet.h"

#include "Declarations.h"

#include <boost/algorithm/string/trim.hpp>

#include <cctype>

namespace Rocket::Core {

namespace {

constexpr std::size_t MAXIMUM_SHEET_SIZE = 256u << 10;
constexpr std::size_t MAXIMUM_SELECTOR_SIZE = 256;
constexpr int MAXIMUM_DIGITS = 6;

/// Behind the bracket that closes the one at `open`; the end if there is none.
std::size_t skipBlock(std::string_view text, std::size_t open) {
  int depth = 0;
  for (std::size_t at = open; at < text.size(); ++at) {
    if (text[at] == '{') ++depth;
    if (text[at] == '}' && --depth == 0) return at + 1;
  }
  return text.size();
}

/// Pseudo elements make boxes that no document of ours has.
bool isSafeSelector(std::string_view selector) {
  return !selector.empty() && selector.size() <= MAXIMUM_SELECTOR_SIZE &&
         selector.find("::") == std::string_view::npos && selector.find(":before") == std::string_view::npos &&
         selector.find(":after") == std::string_view::npos && selector.find_first_of("@;}") == std::string_view::npos;
}

void appendRule(std::string& rules, std::string selector, std::string_view block) {
  boost::algorithm::trim(selector);
  if (!isSafeSelector(selector)) return;
  std::string declarations;
  for (const auto& [name, value] : readDeclarations(block))
    if (isSafeValue(value)) declarations += " " + name + ": " + value + ";";
  if (!declarations.empty()) rules += selector + " {" + declarations + " }\n";
}

}

std::string withoutStyleComments(std::string_view text) {
  std::string rest;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t comment = text.find("/*", at);
    rest += text.substr(at, comment == std::string_view::npos ? comment : comment - at);
    if (comment == std::string_view::npos) break;
    const std::size_t end = text.find("*/", comment + 2);
    at = end == std::string_view::npos ? text.size() : end + 2;
  }
  return rest;
}

bool isSafeValue(std::string_view value) {
  int digits = 0;
  for (const char character : value) {
    digits = std::isdigit(static_cast<unsigned char>(character)) ? digits + 1 : 0;
    if (digits > MAXIMUM_DIGITS) return false;
  }
  return value.find("var(") == std::string_view::npos && value.find_first_of("{}") == std::string_view::npos;
}

std::string tidyStyleSheet(std::string_view sheet) {
  const std::string text = withoutStyleComments(sheet.substr(0, MAXIMUM_SHEET_SIZE));
  std::string rules;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t stop = text.find_first_of("{};", at);
    if (stop == std::string::npos) break;
    const std::string_view before = std::string_view(text).substr(at, stop - at);
    const bool isAtRule = before.find('@') != std::string_view::npos;
    if (text[stop] != '{') {
      at = stop + 1;
    } else if (isAtRule) {
      at = skipBlock(text, stop);
    } else {
      const std::size_t end = std::min(text.find('}', stop), text.size());
      appendRule(rules, std::string(before), std::string_view(text).substr(stop + 1, end - stop - 1));
      at = end + 1;
    }
  }
  return rules;
}

}
