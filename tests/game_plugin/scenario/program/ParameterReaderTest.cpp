#include "game_plugin/scenario/program/ParameterReader.h"

#include "game_plugin/scenario/program/ProgramBuilder.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace script;

namespace {

/// Reads from a line that has a token of each kind.
class ParameterReaderTest : public testing::Test {
protected:
  const LogCapture log{};
  const RunningHost host{};
  const ExecutionScope scope{nullptr};
  ProgramBuilder builder{"test", "", host};
  const Words words{"Name", "text", "12", "1.5", "true", "FALSE", "18446744073709551615", "-3", ""};
  const syntax::Tokens tokens = tokensOf(words);
  ParameterReader in{tokens, builder};
};

TEST_F(ParameterReaderTest, ReadsTheTokenAtItsPlace) {
  EXPECT_EQ(in.text(1, "d", "n", ""), "text");
  EXPECT_EQ(in.integer(2, 0, "n", ""), 12);
  EXPECT_EQ(in.decimal(3, 0, "n", ""), 1.5f);
  EXPECT_TRUE(in.flag(4, false, "n", ""));
  EXPECT_EQ(in.id(6, 0, "n", ""), 18446744073709551615u);
  EXPECT_EQ(in.integer(7, 0, "n", ""), -3);
  EXPECT_EQ(in.text(8, "d", "n", ""), "") << "an empty token is there";
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(ParameterReaderTest, AMissingTokenGivesTheDefaultSilently) {
  EXPECT_EQ(in.text(20, "d", "n", ""), "d");
  EXPECT_EQ(in.property(20, 1, "d", "n", ""), "d");
  EXPECT_EQ(in.comparison(20, "==", "n", ""), "==");
  EXPECT_EQ(in.integer(20, 7, "n", ""), 7);
  EXPECT_EQ(in.decimal(20, 1.5f, "n", ""), 1.5f);
  EXPECT_EQ(in.id(20, 7, "n", ""), 7u);
  EXPECT_TRUE(in.flag(20, true, "n", ""));
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(ParameterReaderTest, WithoutANameAMissingTokenThrowsUnlessItIsAFlag) {
  EXPECT_THROW(in.integer(20, 7, "", ""), std::out_of_range);
  EXPECT_THROW(in.text(20, "d", "", ""), std::out_of_range);
  EXPECT_TRUE(in.flag(20, true, "", ""));
}

TEST_F(ParameterReaderTest, AWrongTokenIsLoggedAndGivesTheDefault) {
  EXPECT_EQ(in.integer(3, 7, "Count", ""), 7);
  EXPECT_EQ(log.count(2, "1.5"), 1);
  EXPECT_EQ(log.count(2, "Cant cast your property: Count. Using 7."), 1);
}

TEST_F(ParameterReaderTest, FlagsAreTrueOrFalseExactly) {
  EXPECT_TRUE(in.flag(5, true, "Flag", ""));
  EXPECT_EQ(log.count(2, "Boolvalue: Flag cant be read.|FALSE|"), 1);
  EXPECT_TRUE(in.flag(5, true, "", ""));
  EXPECT_EQ(log.lines.size(), 1u);
}

TEST_F(ParameterReaderTest, WordsAndOperatorsAreReadAsTheyStand) {
  static constexpr std::string_view ACCEPTED[] = {"a", "b"};
  EXPECT_EQ(in.words(1, "a", "n", "", ACCEPTED), "text");
  EXPECT_EQ(in.comparison(1, "==", "n", ""), "text");
  EXPECT_TRUE(log.lines.empty());
}

TEST_F(ParameterReaderTest, EqualTextsShareAnArgument) {
  const Argument first = in.text(1, "d", "n", "");
  const Argument second = in.list(20, "text", "n", "");
  EXPECT_EQ(&first.info(), &second.info());
  EXPECT_NE(&first.info(), &Argument(in.text(20, "other", "n", "")).info());
}

TEST_F(ParameterReaderTest, EachStateHasACellOfItsOwn) {
  const RunState<bool> first = in.state<bool>();
  const RunState<double> second = in.state<double>();
  EXPECT_NE(first.cell(), second.cell());
  EXPECT_EQ(builder.finish()->numberOfStates(), 2u);
}

/// The parameter as one text.
std::string toText(const ParameterDocumentation& parameter) {
  std::string text = std::to_string(parameter.index) + "|" + std::string(parameter.type) + "|" +
                     std::string(parameter.name) + "|" + parameter.defaultValue + "|" +
                     std::string(parameter.description) + "|" + std::string(nameOf(parameter.role));
  for (const std::string_view word : parameter.words)
    text += "|" + std::string(word);
  return text;
}

TEST(ParameterReader, DescribesInsteadOfReading) {
  static constexpr std::string_view ACCEPTED[] = {"a", "b"};
  ParameterReader::Documentation parameters;
  ParameterReader in(parameters);
  EXPECT_TRUE(in.isDescribing());
  EXPECT_EQ(in.listInOut(1, "d", "Text", "a text"), "d");
  EXPECT_FALSE(in.flag(2, false, "Flag", "a flag"));
  EXPECT_EQ(in.id(9, 5, "", ""), 5u);
  EXPECT_EQ(in.decimal(4, 0.5f, "Decimal", ""), 0.5f);
  EXPECT_EQ(in.integer(5, 3, "Key", "", ParameterRole::KEY), 3);
  in.words(6, "c", "Words", "", ACCEPTED);
  in.comparison(7, "==", "Operator", "");
  in.property(8, 6, "", "Property", "");
  in.of(ParameterRole::SOUND, 10, "", "Sound", "");
  EXPECT_EQ(in.state<int>().cell(), 0u);
  const Words expected{"1|string|Text|d|a text|list in and out",
                       "2|bool|Flag|false|a flag|flag|true|false",
                       "9|uint64||5||id",
                       "4|float|Decimal|0.5||decimal",
                       "5|int|Key|3||key",
                       "6|string|Words|c||words|a|b",
                       "7|string|Operator|==||operator|<|<=|==|!=|>=|>",
                       "8|string|Property|||property",
                       "10|string|Sound|||sound"};
  Words described;
  for (const ParameterDocumentation& parameter : parameters)
    described.push_back(toText(parameter));
  EXPECT_EQ(described, expected);
  EXPECT_EQ(parameters[7].componentIndex, 6);
}

TEST(ParameterReader, AnArgumentThatWasOnlyDescribedIsEmpty) {
  ParameterReader::Documentation parameters;
  EXPECT_EQ(Argument(ParameterReader(parameters).text(1, "default", "n", "")), "");
}

}
