#include "apps/tidemark/test/directives/Words.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <limits>

namespace tidemark::test {

namespace {

bool isBlank(char character) { return character == ' ' || character == '\t' || character == '\r'; }

int hexValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

// `position` stands on the character behind the backslash and is left on the last one of the escape.
char readEscape(std::string_view text, std::size_t& position) {
  const char kind = position < text.size() ? text[position] : '\0';
  switch (kind) {
  case '"':
  case '\\':
    return kind;
  case 'n':
    return '\n';
  case 't':
    return '\t';
  case 'x': {
    const int high = position + 1 < text.size() ? hexValue(text[position + 1]) : -1;
    const int low = position + 2 < text.size() ? hexValue(text[position + 2]) : -1;
    if (high < 0 || low < 0) throw DirectiveError("\\x needs two hexadecimal digits behind it");
    position += 2;
    return static_cast<char>(high * 16 + low);
  }
  default:
    throw DirectiveError("unknown escape in quotes; there are \\\" \\\\ \\n \\t \\xHH");
  }
}

// `position` stands behind the opening quote and is left behind the closing one.
void readQuoted(std::string_view text, std::size_t& position, std::string& word) {
  for (; position < text.size(); ++position) {
    if (text[position] == '"') {
      ++position;
      return;
    }
    if (text[position] == '\\')
      word += readEscape(text, ++position);
    else
      word += text[position];
  }
  throw DirectiveError("a quoted word is not closed");
}

// The part behind `$ @`, or nothing.
std::optional<std::string_view> directiveText(std::string_view line) {
  std::size_t position = line.starts_with("\xEF\xBB\xBF") ? 3 : 0;
  const auto skipBlanks = [&] {
    while (position < line.size() && isBlank(line[position]))
      ++position;
  };
  skipBlanks();
  if (position >= line.size() || line[position] != '$') return std::nullopt;
  ++position;
  skipBlanks();
  if (position >= line.size() || line[position] != '@') return std::nullopt;
  line.remove_prefix(position + 1);
  while (!line.empty() && (isBlank(line.back()) || line.back() == '\n'))
    line.remove_suffix(1);
  return line;
}

}

std::vector<Word> splitWords(std::string_view text) {
  std::vector<Word> words;
  std::size_t position = 0;
  while (true) {
    while (position < text.size() && isBlank(text[position]))
      ++position;
    if (position >= text.size()) return words;
    Word& word = words.emplace_back();
    while (position < text.size() && !isBlank(text[position])) {
      if (text[position] == '"') {
        word.quoted = true;
        readQuoted(text, ++position, word.text);
      } else {
        word.text += text[position++];
      }
    }
  }
}

std::optional<std::string> directiveName(std::string_view line) {
  const auto text = directiveText(line);
  if (!text) return std::nullopt;
  return std::string(text->substr(0, text->find_first_of(" \t")));
}

std::optional<Directive> readDirective(std::string_view line, int number) {
  const auto text = directiveText(line);
  if (!text) return std::nullopt;
  const std::size_t end = std::min(text->find_first_of(" \t"), text->size());
  Directive directive;
  directive.line = number;
  directive.name = std::string(text->substr(0, end));
  std::string_view rest = text->substr(end);
  while (!rest.empty() && isBlank(rest.front()))
    rest.remove_prefix(1);
  directive.text = std::string(rest);
  directive.words = splitWords(rest);
  return directive;
}

bool WordCursor::peekKeyword(std::string_view keyword, std::size_t ahead) const {
  const Word* word = peek(ahead);
  return word && !word->quoted && word->text == keyword;
}

bool WordCursor::takeIf(std::string_view keyword) {
  if (!peekKeyword(keyword)) return false;
  ++mNext;
  return true;
}

void WordCursor::require(std::string_view keyword) {
  if (!takeIf(keyword))
    throw DirectiveError(atEnd() ? fmt::format("'{}' is missing at the end", keyword)
                                 : fmt::format("found '{}' where '{}' stands", peek()->text, keyword));
}

std::string WordCursor::take(std::string_view what) {
  if (atEnd()) throw DirectiveError(fmt::format("{} is missing at the end", what));
  return mWords[mNext++].text;
}

double WordCursor::takeNumber(std::string_view what) {
  const std::string text = take(what);
  if (const auto number = parseNumber(text)) return *number;
  throw DirectiveError(fmt::format("{}: '{}' is no number", what, text));
}

std::int64_t WordCursor::takeInteger(std::string_view what) {
  const std::string text = take(what);
  if (const auto number = parseInteger(text)) return *number;
  throw DirectiveError(fmt::format("{}: '{}' is no whole number", what, text));
}

std::uint64_t WordCursor::takeId(std::string_view what) {
  const std::string text = take(what);
  if (const auto id = parseId(text)) return *id;
  throw DirectiveError(fmt::format("{}: '{}' is no id", what, text));
}

std::vector<std::string> WordCursor::takeRest() {
  std::vector<std::string> rest;
  while (!atEnd())
    rest.push_back(mWords[mNext++].text);
  return rest;
}

void WordCursor::requireEnd() const {
  if (!atEnd()) throw DirectiveError(fmt::format("unexpected word '{}'", peek()->text));
}

std::optional<double> parseNumber(std::string_view text) {
  if (text == "inf" || text == "-inf")
    return text.front() == '-' ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
  if (text == "nan") return std::numeric_limits<double>::quiet_NaN();
  double number = 0;
  const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-';
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data() + (plus ? 1 : 0), end, number);
  // from_chars takes "infinity" and "nan(...)" as well, which are no numbers here.
  if (fault != std::errc() || stop != end || !std::isfinite(number)) return std::nullopt;
  return number;
}

std::optional<std::int64_t> parseInteger(std::string_view text) {
  std::int64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, number);
  return fault == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

std::optional<std::uint64_t> parseId(std::string_view text) {
  std::uint64_t id = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, fault] = std::from_chars(text.data(), end, id);
  return fault == std::errc() && stop == end ? std::optional(id) : std::nullopt;
}

}
