#include "apps/tidemark/test/TestResult.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

namespace tidemark::test {

namespace {

Failure sampleFailure() {
  return {12, Failure::Kind::EXPECTATION, "string x == \"<a & b>\"", "\"gr\xFCn\" \x01", {"> frame 3 INFO a\nb"}};
}

TEST(TestResult, OutcomesSurviveTheirWayBetweenProcesses) {
  const Outcome outcome =
      decodeOutcome(encodeOutcome({{sampleFailure(), {0, Failure::Kind::ERROR, "broken", "", {}}}, {{3, "gr\xFCn"}}}));
  ASSERT_EQ(outcome.failures.size(), 2u);
  EXPECT_EQ(outcome.failures[0].line, 12);
  EXPECT_EQ(outcome.failures[0].kind, Failure::Kind::EXPECTATION);
  EXPECT_EQ(outcome.failures[0].expected, "string x == \"<a & b>\"");
  EXPECT_EQ(outcome.failures[0].found, "\"grün\" \x01");
  EXPECT_EQ(outcome.failures[0].log, std::vector<std::string>{"> frame 3 INFO a\nb"});
  EXPECT_EQ(outcome.failures[1].kind, Failure::Kind::ERROR);
  ASSERT_EQ(outcome.notes.size(), 1u);
  EXPECT_EQ(outcome.notes[0].line, 3);
  EXPECT_EQ(outcome.notes[0].text, "grün");
}

TEST(TestResult, ABrokenResultIsAFault) {
  EXPECT_THROW(decodeOutcome(""), std::exception);
  EXPECT_THROW(decodeOutcome("{}"), std::exception);
}

TEST(TestResult, ANoteNamesFileAndLine) {
  EXPECT_EQ(describeNote("a.script", {4, "hint: x"}), "a.script:4: note: hint: x\n");
  EXPECT_EQ(describeNote("a.script", {0, "hint: x"}), "a.script: note: hint: x\n");
}

TEST(TestResult, AFailureNamesFileLineExpectedFoundAndLog) {
  const std::string text =
      describeFailure("a/b.script", {12, Failure::Kind::EXPECTATION, "variable x == 1", "2", {"> frame 3"}});
  EXPECT_EQ(
      text,
      "a/b.script:12: expectation failed\n    expected: variable x == 1\n    found:    2\n    log:\n    > frame 3\n");
  EXPECT_EQ(describeFailure("a", {0, Failure::Kind::ERROR, "broken", "", {}}), "a: error: broken\n");
}

TEST(TestResult, JUnitIsWellFormedAndCounts) {
  const std::string xml = toJUnit({{"dir/a.script", 0.5, {}, {}},
                                   {"b.script", 1, {sampleFailure()}, {{7, "hint: <x>"}}},
                                   {"c.script", 0, {{1, Failure::Kind::ERROR, "x", "", {}}}, {}}});
  pugi::xml_document document;
  ASSERT_TRUE(document.load_string(xml.c_str())) << xml;
  const pugi::xml_node suite = document.child("testsuites").child("testsuite");
  EXPECT_STREQ(suite.attribute("tests").value(), "3");
  EXPECT_STREQ(suite.attribute("failures").value(), "1");
  EXPECT_STREQ(suite.attribute("errors").value(), "1");
  const pugi::xml_node first = suite.child("testcase");
  EXPECT_STREQ(first.attribute("name").value(), "a.script");
  EXPECT_STREQ(first.attribute("classname").value(), "dir");
  EXPECT_FALSE(first.first_child());
  const pugi::xml_node second = first.next_sibling("testcase");
  EXPECT_STREQ(second.child("failure").attribute("message").value(), "string x == \"<a & b>\"");
  EXPECT_NE(std::string(second.child("failure").text().get()).find("b.script:12"), std::string::npos);
  EXPECT_STREQ(second.child("system-out").text().get(), "b.script:7: note: hint: <x>\n");
  EXPECT_TRUE(second.next_sibling("testcase").child("error"));
}

}

}
