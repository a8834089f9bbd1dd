#include "Declarations.h"

#include "StyleSheet.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/trim.hpp>

namespace Rocket::Core {

namespace {

/// Where the next `;` stands that ends a declaration.
std::size_t findEnd(std::string_view text, std::size_t from) {
  char quote = 0;
  int brackets = 0;
  for (std::size_t at = from; at < text.size(); ++at) {
    const char character = text[at];
    if (quote)
      quote = character == quote ? 0 : quote;
    else if (character == '"' || character == '\'')
      quote = character;
    else if (character == '(')
      ++brackets;
    else if (character == ')' && brackets > 0)
      --brackets;
    else if (character == ';' && brackets == 0)
      return at;
  }
  return text.size();
}

}

std::vector<std::pair<String, String>> readDeclarations(std::string_view text) {
  const std::string rest = withoutStyleComments(text);
  std::vector<std::pair<String, String>> declarations;
  for (std::size_t at = 0; at < rest.size();) {
    const std::size_t end = findEnd(rest, at);
    const std::string_view declaration = std::string_view(rest).substr(at, end - at);
    at = end + 1;
    const std::size_t colon = declaration.find(':');
    if (colon == std::string_view::npos) continue;
    std::string name(declaration.substr(0, colon)), value(declaration.substr(colon + 1));
    boost::algorithm::trim(name);
    boost::algorithm::trim(value);
    boost::algorithm::to_lower(name);
    if (!name.empty() && !value.empty()) declarations.emplace_back(std::move(name), std::move(value));
  }
  return declarations;
}

}
