#include "game_plugin/syntax/ScriptTokenizer.h"

#include <gtest/gtest.h>

#include <random>

using namespace script::syntax;

namespace {

using Words = std::vector<std::string>;

Words wordsOf(const Tokens& tokens) {
  Words words;
  for (const Token& token : tokens)
    words.emplace_back(token.text);
  return words;
}

/// What the grammar makes of the line, empty if it is no command.
Words readByGrammar(std::string_view line) {
  Tokens tokens;
  std::string storage;
  return tokenizeByGrammar(line, tokens, storage) ? wordsOf(tokens) : Words();
}

/// The tokens as they were written: what stands at their places.
Words written(std::string_view line, const Tokens& tokens) {
  Words texts;
  for (const Token& token : tokens)
    texts.emplace_back(line.substr(token.begin, token.end - token.begin));
  return texts;
}

Words writtenByGrammar(std::string_view line) {
  Tokens tokens;
  std::string storage;
  EXPECT_TRUE(tokenizeByGrammar(line, tokens, storage)) << line;
  return written(line, tokens);
}

TEST(ScriptTokenizer, ReadsNameAndArguments) {
  EXPECT_EQ(readByGrammar("Foo(\"a b\",1,true);"), (Words{"Foo", "a b", "1", "true"}));
  EXPECT_EQ(readByGrammar("Foo();"), (Words{"Foo"}));
  EXPECT_EQ(readByGrammar("!Foo(1);"), (Words{"!Foo", "1"}));
}

TEST(ScriptTokenizer, DropsAnEmptyArgumentAtTheEndOnly) {
  EXPECT_EQ(readByGrammar("Foo(\"\");"), (Words{"Foo"}));
  EXPECT_EQ(readByGrammar("Foo(\"\",1);"), (Words{"Foo", "", "1"}));
  EXPECT_EQ(readByGrammar("Foo(1,\"\");"), (Words{"Foo", "1"}));
}

TEST(ScriptTokenizer, SkipsBlanksBetweenAllCharactersOutsideQuotes) {
  EXPECT_EQ(readByGrammar("  Set Variable (a b, c) ; "), (Words{"SetVariable", "ab", "c"}));
}

TEST(ScriptTokenizer, DoublesABareArgumentByWhatItSharesWithSvar) {
  EXPECT_EQ(readByGrammar("Foo(start);"), (Words{"Foo", "sstart"}));
  EXPECT_EQ(readByGrammar("Foo(sv1);"), (Words{"Foo", "svsv1"}));
  EXPECT_EQ(readByGrammar("Foo(svalue);"), (Words{"Foo", "svasvalue"}));
  EXPECT_EQ(readByGrammar("Foo(svar);"), (Words{"Foo", "svarsvar"}));
  EXPECT_EQ(readByGrammar("Foo(1,start,\"start\",s);"), (Words{"Foo", "1", "sstart", "start", "ss"}));
}

TEST(ScriptTokenizer, KeepsTheOpeningOfAVariableReference) {
  EXPECT_EQ(readByGrammar("Foo(\"a b\",svar(x));"), (Words{"Foo", "a b", "svar(x"}));
  EXPECT_EQ(readByGrammar("Foo(svar(start),svar(y));"), (Words{"Foo", "svar(start", "svar(y"}));
}

TEST(ScriptTokenizer, TakesTheGlobalMarkInEitherEncoding) {
  EXPECT_EQ(readByGrammar("Foo(\xA7x,\xC2\xA7y);"), (Words{"Foo", "\xA7x", "\xC2\xA7y"}));
}

TEST(ScriptTokenizer, RefusesWhatIsNoCommand) {
  for (const char* line : {"", "Foo", "Foo()", "Foo;", "Foo(-1);", "Foo(1,);", "Foo(,1);", "Foo(\"a);", "Foo(1); x",
                           "(1);", "F\xC3\xB6o();", "Foo(\xFF);", "Foo(\"a\"b);", "Foo(svar(x);"})
    EXPECT_TRUE(readByGrammar(line).empty()) << line;
}

Words split(std::string text) {
  Words pieces;
  for (const std::string_view piece : splitArguments(text))
    pieces.emplace_back(piece);
  return pieces;
}

TEST(ScriptTokenizer, SplitsArgumentsAtCommasOutsideQuotes) {
  EXPECT_EQ(split("\"a,b\",c,,d"), (Words{"a,b", "c", "", "d"}));
  EXPECT_EQ(split("a,"), (Words{"a"}));
  EXPECT_TRUE(split("").empty());
}

TEST(ScriptTokenizer, TokensKnowWhereTheyAreWrittenQuotesIncluded) {
  const std::string_view line = "  Foo ( \"a, b\" ,1, svar(x) ) ; ";
  Tokens tokens;
  ASSERT_TRUE(tokenizeFast(line, tokens));
  EXPECT_EQ(wordsOf(tokens), (Words{"Foo", "a, b", "1", "svar(x"}));
  EXPECT_EQ(written(line, tokens), (Words{"Foo", "\"a, b\"", "1", "svar(x)"}));
}

TEST(ScriptTokenizer, TokensThatTheGrammarMakesKnowWhereTheyAreWritten) {
  EXPECT_EQ(writtenByGrammar("  Set Variable ( a b , \"c, d\", e) ; "),
            (Words{"Set Variable", "a b", "\"c, d\"", "e"}));
  EXPECT_EQ(writtenByGrammar("Foo(start,s v a r (x),1);"), (Words{"Foo", "start", "s v a r (x)", "1"}));
  EXPECT_EQ(writtenByGrammar("Foo(\"\",s,\"\");"), (Words{"Foo", "\"\"", "s"})) << "the last one is dropped";
}

TEST(ScriptTokenizer, TheFastPathAgreesWithTheGrammarWhereverItAnswers) {
  const std::string alphabet = "sva rx1.!_(),;\"\xA7\xC2\xFF-\t";
  std::mt19937 random(7);
  std::size_t answered = 0;
  Tokens fast;
  Tokens exact;
  std::string storage;
  for (int round = 0; round < 200000; ++round) {
    std::string line = "F(";
    for (unsigned length = random() % 10; length > 0; --length)
      line += alphabet[random() % alphabet.size()];
    line += ");";
    if (!tokenizeFast(line, fast)) continue;
    ++answered;
    ASSERT_TRUE(tokenizeByGrammar(line, exact, storage)) << line;
    ASSERT_EQ(wordsOf(fast), wordsOf(exact)) << line;
    ASSERT_EQ(written(line, fast), written(line, exact)) << line;
  }
  EXPECT_GT(answered, 1000u);
}

TEST(ScriptTokenizer, TheShapesOfScriptsDontNeedTheGrammar) {
  Tokens tokens;
  for (const char* line : {"Foo();", "Foo(\"a b\",1,true);", "  !Foo ( svar(x) , \xA7y ) ; "})
    EXPECT_TRUE(tokenizeFast(line, tokens)) << line;
  for (const char* line : {"Foo(start);", "F oo();", "Foo", ""})
    EXPECT_FALSE(tokenizeFast(line, tokens)) << line;
}

TEST(ScriptTokenizer, TokenizeTakesEitherRoad) {
  EXPECT_EQ(tokenize("Foo(1);"), (Words{"Foo", "1"}));
  EXPECT_EQ(tokenize("Foo(start);"), (Words{"Foo", "sstart"}));
  EXPECT_TRUE(tokenize("Foo(").empty());
}

}
