#include "game_plugin/scenario/language/ScriptTokenizer.h"

#include "game_plugin/scenario/language/ScriptParser.h"

#include <boost/spirit/include/qi_action.hpp>
#include <boost/spirit/include/qi_char.hpp>
#include <boost/spirit/include/qi_directive.hpp>
#include <boost/spirit/include/qi_nonterminal.hpp>
#include <boost/spirit/include/qi_operator.hpp>
#include <boost/spirit/include/qi_parse.hpp>

#include <array>

namespace script {

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

/// Walks a line of the shape Name(argument, argument); with blanks only between the parts.
class FastScanner {
public:
  FastScanner(std::string_view line, Tokens& tokens) : mAt(line.data()), mEnd(mAt + line.size()), mTokens(tokens) {}

  bool scan() {
    skipBlanks();
    const char* name = mAt;
    skipClass(NAME);
    if (mAt == name) return false;
    append(name, mAt);
    skipBlanks();
    if (!take('(') || !scanArguments() || !take(';')) return false;
    skipBlanks();
    if (mAt != mEnd) return false;
    // A text at the end of the list is dropped if it is empty.
    if (mCount > 1 && mTokens[mCount - 1].empty()) --mCount;
    mTokens.resize(mCount);
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
      append(start + 1, mAt);
      return take('"');
    }
    if (mAt == mEnd || *mAt == 's') return false; // "svar(" or one of the doubled arguments: the grammar knows
    skipClass(BARE);
    append(start, mAt);
    return mAt != start;
  }

  void append(const char* from, const char* to) {
    if (mCount == mTokens.size()) mTokens.emplace_back();
    mTokens[mCount++].assign(from, to);
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

  const char* mAt;
  const char* mEnd;
  Tokens& mTokens;
  std::size_t mCount = 0;
};

}

Tokens tokenizeByGrammar(std::string_view line) {
  static const CommandGrammar grammar;
  std::string result;
  Iterator at = line.begin();
  const bool matched = qi::phrase_parse(at, line.end(), grammar.command, grammar.skipper, result) && at == line.end();
  if (!matched) return {};
  const std::size_t parenthesis = result.find('(');
  Tokens tokens = ScriptParser::splitArguments(std::string_view(result).substr(parenthesis + 1));
  tokens.insert(tokens.begin(), result.substr(0, parenthesis));
  return tokens;
}

bool tokenizeFast(std::string_view line, Tokens& tokens) { return FastScanner(line, tokens).scan(); }

}
