#include "game_plugin/scenario/language/ParameterReaders.h"

#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace script;

namespace {

const Tokens TOKENS{"Name", "text", "12", "1.5", "true", "FALSE", "18446744073709551615", "-3"};

TEST(ParameterReaders, ReadTheTokenAtTheirPlace) {
  const LogCapture log;
  EXPECT_EQ(readStringParameter(TOKENS, 1, "d", "n", ""), "text");
  EXPECT_EQ(readIntParameter(TOKENS, 2, 0, "n", ""), 12);
  EXPECT_EQ(readFloatParameter(TOKENS, 3, 0, "n", ""), 1.5f);
  EXPECT_TRUE(readBoolParameter(TOKENS, 4, false, "n", ""));
  EXPECT_EQ(readUInt64Parameter(TOKENS, 6, 0, "n", ""), 18446744073709551615u);
  EXPECT_EQ(readIntParameter(TOKENS, 7, 0, "n", ""), -3);
  EXPECT_TRUE(log.lines.empty());
}

TEST(ParameterReaders, AMissingTokenGivesTheDefaultSilently) {
  const LogCapture log;
  EXPECT_EQ(readStringParameter(TOKENS, 20, "d", "n", ""), "d");
  EXPECT_EQ(readIntParameter(TOKENS, 20, 7, "n", ""), 7);
  EXPECT_TRUE(readBoolParameter(TOKENS, 20, true, "n", ""));
  EXPECT_TRUE(log.lines.empty());
}

TEST(ParameterReaders, WithoutANameAMissingTokenThrowsUnlessItIsABool) {
  EXPECT_THROW(readIntParameter(TOKENS, 20, 7, "", ""), std::out_of_range);
  EXPECT_THROW(readStringParameter(TOKENS, 20, "d", "", ""), std::out_of_range);
  EXPECT_TRUE(readBoolParameter(TOKENS, 20, true, "", ""));
}

TEST(ParameterReaders, AWrongTokenIsLoggedAndGivesTheDefault) {
  const LogCapture log;
  EXPECT_EQ(readIntParameter(TOKENS, 3, 7, "Count", ""), 7);
  EXPECT_EQ(log.count(2, "1.5"), 1);
  EXPECT_EQ(log.count(2, "Cant cast your property: Count. Using 7."), 1);
}

TEST(ParameterReaders, BoolsAreTrueOrFalseExactly) {
  const LogCapture log;
  EXPECT_TRUE(readBoolParameter(TOKENS, 5, true, "Flag", ""));
  EXPECT_EQ(log.count(2, "Boolvalue: Flag cant be read.|FALSE|"), 1);
  EXPECT_TRUE(readBoolParameter(TOKENS, 5, true, "", ""));
  EXPECT_EQ(log.lines.size(), 1u);
}

TEST(ParameterReaders, DescribeWhileTheFlagIsSet) {
  std::vector<ParameterDocumentation> parameters;
  {
    const DocumentationScope scope(parameters);
    EXPECT_TRUE(isDocumenting());
    EXPECT_EQ(readStringParameter(TOKENS, 1, "d", "Text", "a text"), "d");
    EXPECT_FALSE(readBoolParameter(TOKENS, 4, false, "Flag", "a flag"));
    EXPECT_EQ(readUInt64Parameter({}, 9, 5, "", ""), 5u);
  }
  EXPECT_FALSE(isDocumenting());
  ASSERT_EQ(parameters.size(), 3u);
  EXPECT_EQ(parameters[0].type + "|" + parameters[0].name + "|" + parameters[0].defaultValue + "|" +
                parameters[0].description,
            "string|Text|d|a text");
  EXPECT_EQ(parameters[1].type + "|" + parameters[1].defaultValue, "bool|false");
  EXPECT_EQ(parameters[2].type + "|" + parameters[2].defaultValue, "uint64|5");
}

}
