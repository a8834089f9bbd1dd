#include "game_plugin/syntax/ScriptText.h"

#include <gtest/gtest.h>

using namespace script::syntax;

namespace {

/// A line as tests compare it: copied, since a Line's views end with the next one.
struct Read {
  LineKind kind;
  std::string name;
  bool negated, inBlock, inElse;
  std::uint32_t number;
};

std::vector<Read> readAll(std::string_view text) {
  std::vector<Read> lines;
  for (ScriptText script(text); script.next();) {
    const Line& line = script.line();
    lines.push_back({line.kind, line.tokens.empty() ? "" : std::string(line.tokens.front().text), line.negated,
                     line.inBlock, line.inElse, line.number});
  }
  return lines;
}

std::vector<LineKind> kindsOf(std::string_view text) {
  std::vector<LineKind> kinds;
  for (const Read& line : readAll(text))
    kinds.push_back(line.kind);
  return kinds;
}

/// The first line of a text, which must outlive it.
class FirstLine {
public:
  explicit FirstLine(std::string_view text) : mText(text) { EXPECT_TRUE(mText.next()); }
  const Line& operator*() const { return mText.line(); }
  const Line* operator->() const { return &mText.line(); }
  std::uint32_t columnOfToken(std::size_t index) const {
    return mText.line().columnOf(mText.line().tokens[index].begin);
  }

private:
  ScriptText mText;
};

using enum LineKind;

TEST(ScriptText, TellsTheKindsOfLines) {
  EXPECT_EQ(
      kindsOf("InitNewTrigger();\nInitConditions();\nFoo();\nInitEffects();\nFoo();\nInitNegativEffects();\nFoo();"),
      (std::vector{NEW_TRIGGER, CONDITIONS, CONDITION, EFFECTS, EFFECT, EFFECTS, EFFECT}));
  EXPECT_EQ(kindsOf("\n  \n\t{}\nfoo\n$ foo\nFoo(); $"), (std::vector{EMPTY, EMPTY, EMPTY, INVALID, COMMENT, COMMENT}));
  EXPECT_TRUE(kindsOf("").empty());
  EXPECT_EQ(kindsOf("Foo();\n").size(), 1u) << "the last line's end begins no line";
}

TEST(ScriptText, OnlyTheFirstTriggerOfAFileBeginsInItsConditions) {
  EXPECT_EQ(kindsOf("InitNewTrigger();\nFoo();\nInitEffects();\nInitNewTrigger();\nFoo();"),
            (std::vector{NEW_TRIGGER, CONDITION, EFFECTS, NEW_TRIGGER, EFFECT}));
}

TEST(ScriptText, ABlockGoesFromItsIfToItsThenEnd) {
  const std::vector<Read> lines =
      readAll("InitEffects();\nFoo();\nIf();\nFoo();\nThen();\nFoo();\nElse();\nFoo();\nThenEnd();\nFoo();\nThen();");
  const std::vector<LineKind> kinds{EFFECTS, EFFECT, IF,       CONDITION, THEN,  EFFECT,
                                    ELSE,    EFFECT, THEN_END, EFFECT,    EFFECT};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].kind, kinds[i]) << lines[i].number;
    EXPECT_EQ(lines[i].inBlock, i >= 2 && i < 8) << lines[i].number;
    EXPECT_EQ(lines[i].inBlock && lines[i].inElse, i == 6 || i == 7) << lines[i].number;
  }
}

TEST(ScriptText, ANewTriggerEndsABlockAndASecondIfItsElse) {
  const std::vector<Read> lines = readAll("If();\nElse();\nIf();\nFoo();\nInitNewTrigger();\nThen();");
  EXPECT_TRUE(lines[1].inElse);
  EXPECT_TRUE(lines[3].inBlock);
  EXPECT_FALSE(lines[3].inElse);
  EXPECT_FALSE(lines[5].inBlock);
  EXPECT_EQ(lines[5].kind, CONDITION) << "no keyword outside of a block";
}

TEST(ScriptText, AnExclamationMarkNegatesAndIsNoPartOfTheName) {
  const FirstLine line("  !Foo(1);");
  EXPECT_TRUE(line->negated);
  EXPECT_EQ(line->tokens[0].text, "Foo");
  EXPECT_EQ(line.columnOfToken(0), 4u);
  EXPECT_EQ(line.columnOfToken(1), 8u);
  EXPECT_FALSE(FirstLine("Foo(\"!x\");")->negated);
  EXPECT_EQ(readAll("!!Foo();")[0].name, "!Foo");
  EXPECT_EQ(readAll("!If();\nThen();")[1].kind, THEN) << "keywords mind no mark";
}

TEST(ScriptText, ColumnsCountTabsAndBracesThatTheTextHasLost) {
  const FirstLine line("\t{Fo\to( \"a{b}\",\t1 );}");
  EXPECT_EQ(line->text, "Foo( \"ab\",1 );");
  EXPECT_EQ(line->tokens[1].text, "ab");
  EXPECT_EQ(line.columnOfToken(0), 3u);
  EXPECT_EQ(line.columnOfToken(1), 9u);
  EXPECT_EQ(line.columnOfToken(2), 17u);
  EXPECT_EQ(line->raw[16], '1');
}

TEST(ScriptText, ColumnsOfTokensThatTheGrammarMade) {
  const FirstLine line("\tSet\tVariable( start,\t\"x\" );");
  EXPECT_EQ(line->tokens[0].text, "SetVariable");
  EXPECT_EQ(line->tokens[1].text, "sstart");
  EXPECT_EQ(line.columnOfToken(0), 2u);
  EXPECT_EQ(line.columnOfToken(1), 16u);
  EXPECT_EQ(line.columnOfToken(2), 23u);
  EXPECT_EQ(line->raw[22], '"');
}

TEST(ScriptText, LinesAreCountedWhateverTheirEnds) {
  const std::vector<Read> lines = readAll("\xEF\xBB\xBF"
                                          "A();\r\n\r\nB();\n\rC();");
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0].name, "A");
  EXPECT_EQ(lines[1].kind, EMPTY);
  EXPECT_EQ(lines[2].name, "B");
  EXPECT_EQ(lines[2].number, 3u);
  EXPECT_EQ(lines[3].name, "C");
}

TEST(ScriptText, KnowsUtf8ByACharacterOfSeveralBytes) {
  EXPECT_TRUE(ScriptText::isMultiByteUtf8("a \xC2\xA7"));
  EXPECT_TRUE(ScriptText::isMultiByteUtf8("\xEF\xBB\xBF"
                                          "a"));
  EXPECT_FALSE(ScriptText::isMultiByteUtf8("a"));
  EXPECT_FALSE(ScriptText::isMultiByteUtf8("\xA7"));
  EXPECT_FALSE(ScriptText::isMultiByteUtf8("\xC2\xA7 \xA7"));
}

}
