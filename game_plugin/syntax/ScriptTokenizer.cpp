#include "game_plugin/syntax/ScriptTokenizer.h"

#include <boost/spirit/include/qi_action.hpp>
#include <boost/spirit/include/qi_char.hpp>
#include <boost/spirit/include/qi_directive.hpp>
#include <boost/spirit/include/qi_nonterminal.hpp>
#include <boost/spirit/include/qi_operator.hpp>
#include <boost/spirit/include/qi_parse.hpp>

#include <array>

namespace script::syntax {

namespace {

namespace qi = boost::spirit::qi;
using Iterator = std::string_view::const_iterator;

/// The C library's white space. A set, since the character classes assert on bytes above 127.
constexpr const char* WHITE_SPACE = " \t\n\v\f\r";

using Skipper = qi::rule<Iterator>;
using Rule = qi::rule<Iterator, std::string(), Skipper>;

/// One string is the result: every matched character goes to its end, and what a failed alternative has put there
/// stays.
struct CommandGrammar {
  Skipper skipper;
  Rule command, argument, quoted, variableReference, bare;

  CommandGrammar() {
    using qi::standard::char_;
    skipper = char_(WHITE_SPACE);
    command =
        +char_("0-9a-zA-Z_!") >> char_('(') >> -(argument >> *(char_(',') >> argument)) >> qi::lit(')') >> qi::lit(';');
    argument = quoted | variableReference | bare;
    quoted = qi::lexeme[char_('"') >> *(char_ - char_('"')) >> char_('"')];
    // Character by character: a match of the whole text would leave nothing behind when it fails.
    variableReference = char_('s') >> char_('v') >> char_('a') >> char_('r') >> char_('(') >> bare >> qi::lit(')');
    bare = +char_(".0-9a-zA-Z_\xC2\xA7");
  }
};

bool isWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

enum CharacterClass : unsigned char { NAME = 1, BARE = 2 };

constexpr std::array<unsigned char, 256> buildCharacterClasses() {
  std::array<unsigned char, 256> classes{};
  for (int c = 0; c < 256; ++c)
    if ((c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_')
      classes[static_cast<std::size_t>(c)] = NAME | BARE;
  classes['!'] = NAME;
  classes['.'] = classes[0xC2] = classes[0xA7] = BARE;
  return classes;
}
constexpr std::array<unsigned char, 256> CHARACTER_CLASSES = buildCharacterClasses();

bool isOfClass(char c, CharacterClass characterClass) {
  return (CHARACTER_CLASSES[static_cast<unsigned char>(c)] & characterClass) != 0;
}

constexpr std::string_view REFERENCE = "svar(";

/// Walks a line of the shape Name(argument, argument); with blanks only between the parts.
class FastScanner {
public:
  FastScanner(std::string_view line, Tokens& tokens)
      : mBegin(line.data()), mAt(mBegin), mEnd(mBegin + line.size()), mTokens(tokens) {
    mTokens.clear();
  }

  bool scan() {
    skipBlanks();
    const char* name = mAt;
    skipClass(NAME);
    if (mAt == name) return false;
    append(name, mAt, name, mAt);
    skipBlanks();
    if (!take('(') || !scanArguments() || !take(';')) return false;
    skipBlanks();
    if (mAt != mEnd) return false;
    // A text at the end of the list is dropped if it is empty.
    if (mTokens.size() > 1 && mTokens.back().text.empty()) mTokens.pop_back();
    return true;
  }

private:
  bool scanArguments() {
    skipBlanks();
    if (take(')')) {
      skipBlanks();
      return true;
    }
    do {
      skipBlanks();
      if (!scanArgument()) return false;
      skipBlanks();
    } while (take(','));
    if (!take(')')) return false;
    skipBlanks();
    return true;
  }

  bool scanArgument() {
    const char* start = mAt;
    if (take('"')) {
      while (mAt != mEnd && *mAt != '"')
        ++mAt;
      const char* close = mAt;
      if (!take('"')) return false;
      append(start + 1, close, start, mAt);
      return true;
    }
    if (mAt != mEnd && *mAt == 's') return scanReference();
    skipClass(BARE);
    append(start, mAt, start, mAt);
    return mAt != start;
  }

  /// `svar(name)` without blanks; what else begins with `s` is the grammar's.
  bool scanReference() {
    const char* start = mAt;
    if (std::string_view(mAt, static_cast<std::size_t>(mEnd - mAt)).substr(0, REFERENCE.size()) != REFERENCE)
      return false;
    mAt += REFERENCE.size();
    const char* name = mAt;
    skipClass(BARE);
    const char* close = mAt;
    if (close == name || !take(')')) return false;
    append(start, close, start, mAt);
    return true;
  }

  void append(const char* from, const char* to, const char* begin, const char* end) {
    mTokens.push_back({std::string_view(from, static_cast<std::size_t>(to - from)),
                       static_cast<std::uint32_t>(begin - mBegin), static_cast<std::uint32_t>(end - mBegin)});
  }
  void skipBlanks() {
    while (mAt != mEnd && isWhiteSpace(*mAt))
      ++mAt;
  }
  void skipClass(CharacterClass characterClass) {
    while (mAt != mEnd && isOfClass(*mAt, characterClass))
      ++mAt;
  }
  bool take(char c) {
    if (mAt == mEnd || *mAt != c) return false;
    ++mAt;
    return true;
  }

  const char* mBegin;
  const char* mAt;
  const char* mEnd;
  Tokens& mTokens;
};

/// Gives the tokens their places in a line that the grammar has accepted: its commas outside quotes part the arguments.
class Locator {
public:
  Locator(std::string_view line, Tokens& tokens) : mLine(line), mTokens(tokens) {}

  void locate() {
    const std::size_t parenthesis = mLine.find('(');
    place(0, 0, parenthesis);
    std::size_t begin = parenthesis + 1;
    std::size_t argument = 1;
    bool inQuotes = false;
    const std::size_t last = mLine.rfind(')');
    for (std::size_t at = begin; at <= last; ++at) {
      if (mLine[at] == '"') inQuotes = !inQuotes;
      if (at < last && (mLine[at] != ',' || inQuotes)) continue;
      place(argument++, begin, at);
      begin = at + 1;
    }
  }

private:
  void place(std::size_t token, std::size_t begin, std::size_t end) {
    if (token >= mTokens.size()) return;
    while (begin < end && isWhiteSpace(mLine[begin]))
      ++begin;
    while (end > begin && isWhiteSpace(mLine[end - 1]))
      --end;
    mTokens[token].begin = static_cast<std::uint32_t>(begin);
    mTokens[token].end = static_cast<std::uint32_t>(end);
  }

  std::string_view mLine;
  Tokens& mTokens;
};

}

bool tokenizeByGrammar(std::string_view line, Tokens& tokens, std::string& storage) {
  static const CommandGrammar grammar;
  tokens.clear();
  storage.clear();
  Iterator at = line.begin();
  if (!qi::phrase_parse(at, line.end(), grammar.command, grammar.skipper, storage) || at != line.end()) return false;
  // The name goes behind the arguments, so that they can be written over without their quotes.
  const std::size_t parenthesis = storage.find('(');
  const std::string name = storage.substr(0, parenthesis);
  storage.erase(0, parenthesis + 1);
  const std::vector<std::string_view> arguments = splitArguments(storage);
  const std::size_t argumentsEnd = storage.size();
  const char* const before = storage.data();
  storage += name;
  const std::string_view stored = storage;
  tokens.push_back({stored.substr(argumentsEnd)});
  for (const std::string_view argument : arguments)
    tokens.push_back({stored.substr(static_cast<std::size_t>(argument.data() - before), argument.size())});
  Locator(line, tokens).locate();
  return true;
}

bool tokenizeFast(std::string_view line, Tokens& tokens) { return FastScanner(line, tokens).scan(); }

std::vector<std::string_view> splitArguments(std::string& text) {
  // Written over itself without the quotes; what is kept never moves to the right.
  std::vector<std::pair<std::size_t, std::size_t>> pieces;
  std::size_t written = 0;
  std::size_t begin = 0;
  bool inQuotes = false;
  for (const char c : text) {
    if (c == '"') {
      inQuotes = !inQuotes;
    } else if (c == ',' && !inQuotes) {
      pieces.emplace_back(begin, written);
      begin = written;
    } else {
      text[written++] = c;
    }
  }
  if (written > begin) pieces.emplace_back(begin, written);
  text.resize(written);
  std::vector<std::string_view> views;
  views.reserve(pieces.size());
  for (const auto& [from, to] : pieces)
    views.push_back(std::string_view(text).substr(from, to - from));
  return views;
}

std::vector<std::string> tokenize(std::string_view line) {
  Tokens tokens;
  std::string storage;
  std::vector<std::string> words;
  if (tokenizeFast(line, tokens) || tokenizeByGrammar(line, tokens, storage))
    for (const Token& token : tokens)
      words.emplace_back(token.text);
  return words;
}

}
