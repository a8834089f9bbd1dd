#include "apps/tidemark/test/files/JsonText.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tidemark::test {

namespace {

std::string textAt(const JsonValue& value, std::string_view path) {
  const JsonValue* found = value.find(path);
  return found ? found->text : "nothing";
}

TEST(JsonText, ValuesAreTexts) {
  const JsonValue root =
      parseJson(R"({"s": "t", "n": 1.50, "i": -3, "u": 18446744073709551615, "b": true, "z": null})");
  EXPECT_EQ(textAt(root, "s"), "t");
  EXPECT_EQ(textAt(root, "n"), "1.50");
  EXPECT_EQ(textAt(root, "i"), "-3");
  EXPECT_EQ(textAt(root, "u"), "18446744073709551615");
  EXPECT_EQ(textAt(root, "b"), "true");
  EXPECT_EQ(textAt(root, "z"), "null");
  EXPECT_EQ(textAt(root, "x"), "nothing");
  EXPECT_EQ(textAt(root, "s.x"), "nothing");
}

TEST(JsonText, PathsLeadThroughObjectsAndArrays) {
  const JsonValue root = parseJson(R"({"a": {"b": [1, {"c": "deep"}]}, "0": "key"})");
  EXPECT_EQ(textAt(root, "a.b.0"), "1");
  EXPECT_EQ(textAt(root, "a.b.1.c"), "deep");
  EXPECT_EQ(textAt(root, "a.b.2"), "nothing");
  EXPECT_EQ(textAt(root, "a.b.x"), "nothing");
  EXPECT_EQ(textAt(root, "0"), "key") << "the member of an object, not its number";
  EXPECT_EQ(root.find("a.b")->children.size(), 2u);
  EXPECT_EQ(root.find(""), &root);
}

TEST(JsonText, OfTwoMembersOfOneKeyTheFirstIsFoundAndBothAreCounted) {
  const JsonValue root = parseJson(R"({"a": 1, "a": 2})");
  EXPECT_EQ(textAt(root, "a"), "1");
  EXPECT_EQ(root.children.size(), 2u);
}

TEST(JsonText, FaultsAreTold) {
  EXPECT_THROW((void)parseJson(""), std::runtime_error);
  EXPECT_THROW((void)parseJson("{\"a\": }"), std::runtime_error);
  EXPECT_THROW((void)parseJson("\"\xC4\""), std::runtime_error);
  EXPECT_THROW((void)parseJson(std::string(5'000'000, '[')), std::runtime_error) << "a deep file is no end of the test";
}

}

}
