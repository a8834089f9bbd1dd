#include "game_plugin/scenario/language/ScriptTokenizer.h"

#include "game_plugin/scenario/language/ScriptParser.h"

#include <gtest/gtest.h>

#include <random>

using script::ScriptParser;
using script::tokenizeByGrammar;
using script::tokenizeFast;
using script::Tokens;

namespace {

TEST(ScriptTokenizer, ReadsNameAndArguments) {
  EXPECT_EQ(tokenizeByGrammar("Foo(\"a b\",1,true);"), (Tokens{"Foo", "a b", "1", "true"}));
  EXPECT_EQ(tokenizeByGrammar("Foo();"), (Tokens{"Foo"}));
  EXPECT_EQ(tokenizeByGrammar("!Foo(1);"), (Tokens{"!Foo", "1"}));
}

TEST(ScriptTokenizer, DropsAnEmptyArgumentAtTheEndOnly) {
  EXPECT_EQ(tokenizeByGrammar("Foo(\"\");"), (Tokens{"Foo"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(\"\",1);"), (Tokens{"Foo", "", "1"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(1,\"\");"), (Tokens{"Foo", "1"}));
}

TEST(ScriptTokenizer, SkipsBlanksBetweenAllCharactersOutsideQuotes) {
  EXPECT_EQ(tokenizeByGrammar("  Set Variable (a b, c) ; "), (Tokens{"SetVariable", "ab", "c"}));
}

TEST(ScriptTokenizer, DoublesABareArgumentByWhatItSharesWithSvar) {
  EXPECT_EQ(tokenizeByGrammar("Foo(start);"), (Tokens{"Foo", "sstart"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(sv1);"), (Tokens{"Foo", "svsv1"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(svalue);"), (Tokens{"Foo", "svasvalue"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(svar);"), (Tokens{"Foo", "svarsvar"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(1,start,\"start\",s);"), (Tokens{"Foo", "1", "sstart", "start", "ss"}));
}

TEST(ScriptTokenizer, KeepsTheOpeningOfAVariableReference) {
  EXPECT_EQ(tokenizeByGrammar("Foo(\"a b\",svar(x));"), (Tokens{"Foo", "a b", "svar(x"}));
  EXPECT_EQ(tokenizeByGrammar("Foo(svar(start),svar(y));"), (Tokens{"Foo", "svar(start", "svar(y"}));
}

TEST(ScriptTokenizer, TakesTheGlobalMarkInEitherEncoding) {
  EXPECT_EQ(tokenizeByGrammar("Foo(\xA7x,\xC2\xA7y);"), (Tokens{"Foo", "\xA7x", "\xC2\xA7y"}));
}

TEST(ScriptTokenizer, RefusesWhatIsNoCommand) {
  for (const char* line : {"", "Foo", "Foo()", "Foo;", "Foo(-1);", "Foo(1,);", "Foo(,1);", "Foo(\"a);", "Foo(1); x",
                           "(1);", "F\xC3\xB6o();", "Foo(\xFF);", "Foo(\"a\"b);", "Foo(svar(x);"})
    EXPECT_TRUE(tokenizeByGrammar(line).empty()) << line;
}

TEST(ScriptTokenizer, SplitsArgumentsAtCommasOutsideQuotes) {
  EXPECT_EQ(ScriptParser::splitArguments("\"a,b\",c,,d"), (Tokens{"a,b", "c", "", "d"}));
  EXPECT_EQ(ScriptParser::splitArguments("a,"), (Tokens{"a"}));
  EXPECT_TRUE(ScriptParser::splitArguments("").empty());
}

TEST(ScriptTokenizer, TheFastPathAgreesWithTheGrammarWhereverItAnswers) {
  const std::string alphabet = "sva rx1.!_(),;\"\xA7\xC2\xFF-\t";
  std::mt19937 random(7);
  std::size_t answered = 0;
  for (int round = 0; round < 200000; ++round) {
    std::string line = "F(";
    for (unsigned length = random() % 10; length > 0; --length)
      line += alphabet[random() % alphabet.size()];
    line += ");";
    Tokens fast;
    if (!tokenizeFast(line, fast)) continue;
    ++answered;
    ASSERT_EQ(fast, tokenizeByGrammar(line)) << line;
  }
  EXPECT_GT(answered, 1000u);
}

}
