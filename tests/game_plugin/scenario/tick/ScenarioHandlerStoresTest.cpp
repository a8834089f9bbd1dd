#include "game_plugin/scenario/stores/JsonStore.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

const std::string MARK = "\xA7";

class ScenarioHandlerStores : public testing::Test {
protected:
  std::shared_ptr<GlobalStores> global = std::make_shared<GlobalStores>();
  ScenarioHandler handler{global};
};

TEST_F(ScenarioHandlerStores, ReadingAMissingNameMakesAnEmptyEntry) {
  EXPECT_EQ(handler.ResolveFloat(std::string("a")), 0);
  EXPECT_EQ(handler.ResolveString(std::string("svar(b")), "");
  EXPECT_TRUE(handler.ResolveEntityList(std::string("c")).empty());
  EXPECT_FALSE(handler.GetBoolVariable("d"));
  EXPECT_TRUE(handler.GetStringList("e").empty());
  EXPECT_TRUE(handler.GetJsonVariable("f").empty());
  EXPECT_EQ(handler.variables.size() + handler.stringVariables.size() + handler.entityLists.size() +
                handler.boolVariables.size() + handler.stringLists.size() + handler.getJsonStore().entries.size(),
            6u);
}

TEST_F(ScenarioHandlerStores, TheMarkChoosesTheGlobalStores) {
  handler.SetFloatVariable(MARK + "a", 2);
  handler.SetStringVariable("x" + MARK, "text");
  handler.AddToEntityList(std::string("l\xC2\xA7"), 7);
  EXPECT_EQ(handler.variables.size() + handler.stringVariables.size() + handler.entityLists.size(), 0u);
  ScenarioHandler other(global);
  EXPECT_EQ(other.ResolveFloat(MARK + "a"), 2);
  EXPECT_EQ(other.ResolveString("svar(x" + MARK), "text");
  EXPECT_EQ(other.ResolveEntityList(std::string("l\xC2\xA7")).size(), 1u);
}

TEST_F(ScenarioHandlerStores, BoolsAreLocalWhateverTheirName) {
  handler.SetBoolVariable(MARK + "b", true);
  ScenarioHandler other(global);
  EXPECT_FALSE(other.GetBoolVariable(MARK + "b"));
  EXPECT_TRUE(handler.GetBoolVariable(MARK + "b"));
}

TEST_F(ScenarioHandlerStores, AListHoldsNoIdTwice) {
  for (const std::uint64_t id : {5u, 6u, 5u})
    handler.AddToEntityList(std::string("l"), id);
  EXPECT_EQ(handler.ResolveEntityList(std::string("l")).vector(), (std::vector<std::uint64_t>{5, 6}));
  handler.RemoveFromEntityList("l", 5);
  handler.RemoveFromEntityList("missing", 5);
  EXPECT_EQ(handler.ResolveEntityList(std::string("l")).vector(), std::vector<std::uint64_t>{6});
  EXPECT_EQ(handler.entityLists.size(), 1u);
}

TEST_F(ScenarioHandlerStores, ClearingAMissingListMakesNone) {
  handler.ClearEntityList(std::string("missing"));
  handler.ClearEntityList(std::string("missing"), true);
  EXPECT_EQ(handler.entityLists.size(), 0u);
}

TEST_F(ScenarioHandlerStores, StringListsHoldNoTextTwice) {
  for (const char* text : {"a", "b", "a"})
    handler.AddToStringList("s", text);
  EXPECT_EQ(handler.GetStringList("s"), (std::vector<std::string>{"a", "b"}));
}

TEST_F(ScenarioHandlerStores, LocalRemovalLeavesTheGlobalStoreAlone) {
  handler.SetFloatVariable(MARK + "a", 1);
  handler.SetFloatVariable(std::string("b"), 2);
  handler.removeLocalVariable(MARK + "a");
  handler.removeLocalVariable("b");
  EXPECT_EQ(global->variables.size(), 1u);
  EXPECT_EQ(handler.variables.size(), 0u);
}

TEST_F(ScenarioHandlerStores, AReferenceLosesItsFirstFiveCharacters) {
  handler.SetStringVariable("r(name", "odd");
  EXPECT_EQ(handler.ResolveString(std::string("a svar(name")), "odd");
  EXPECT_EQ(handler.stringVariables.size(), 1u);
}

TEST_F(ScenarioHandlerStores, AGlobalNameIsTheSameInEitherEncoding) {
  handler.SetFloatVariable(std::string("\xC2\xA7v"), 2);
  handler.SetStringVariable("s\xC2\xA7", "text");
  handler.AddToEntityList(std::string("\xC2\xA7l"), 7);
  EXPECT_EQ(handler.ResolveFloat(std::string("\xA7v")), 2);
  EXPECT_EQ(handler.ResolveString(std::string("svar(s\xA7")), "text");
  EXPECT_EQ(handler.ResolveEntityList(std::string("\xA7l")).size(), 1u);
  handler.SetFloatVariable(std::string("\xA7v"), 3);
  handler.SetStringVariable("s\xA7", "other");
  handler.ClearEntityList(std::string("\xA7l"));
  EXPECT_EQ(handler.ResolveFloat(std::string("\xC2\xA7v")), 3);
  EXPECT_EQ(handler.ResolveString(std::string("svar(s\xC2\xA7")), "other");
  EXPECT_TRUE(handler.ResolveEntityList(std::string("\xC2\xA7l")).empty());
  EXPECT_EQ(global->variables.size() + global->stringVariables.size() + global->entityLists.size(), 3u);
}

/// In UTF-8 it ends with the mark's byte, so it is global, and it is a name for itself.
TEST_F(ScenarioHandlerStores, ALetterThatHoldsTheMarksByteIsGlobalAndNoMark) {
  handler.SetFloatVariable(std::string("\xC3\xA7"), 1);
  handler.SetFloatVariable(std::string("\xA7"), 2);
  EXPECT_EQ(handler.variables.size(), 0u);
  EXPECT_EQ(global->variables.size(), 2u);
  EXPECT_EQ(handler.ResolveFloat(std::string("\xC3\xA7")), 1);
}

TEST_F(ScenarioHandlerStores, LocalRemovalsOfGlobalListsGoByTheNameInEitherEncoding) {
  handler.AddToEntityList(std::string("local"), 1);
  handler.AddToEntityList(std::string("\xC2\xA7g"), 7);
  handler.ClearEntityList(std::string("\xA7g"), true);
  EXPECT_EQ(handler.entityLists.size(), 0u) << "the local list at its place";
  handler.RemoveFromEntityList("\xA7g", 7);
  EXPECT_TRUE(handler.ResolveEntityList(std::string("\xC2\xA7g")).empty());
}

}
