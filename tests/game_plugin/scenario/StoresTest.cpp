#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/stores/JsonStore.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

const std::string MARK = "\xA7";

class Stores : public testing::Test {
protected:
  std::shared_ptr<GlobalStores> global = std::make_shared<GlobalStores>();
  ScenarioHandler handler{global};
};

TEST_F(Stores, ReadingAMissingNameMakesAnEmptyEntry) {
  EXPECT_EQ(handler.ResolveFloat(std::string("a")), 0);
  EXPECT_EQ(handler.ResolveString(std::string("svar(b")), "");
  EXPECT_TRUE(handler.ResolveEntityList(std::string("c")).empty());
  EXPECT_FALSE(handler.GetBoolVariable("d"));
  EXPECT_TRUE(handler.GetStringList("e").empty());
  EXPECT_TRUE(handler.GetJsonVariable("f").empty());
  EXPECT_EQ(handler.variables.size() + handler.stringVariables.size() + handler.entityLists.size() +
                handler.boolVariables.size() + handler.stringLists.size() + handler.GetJsonStore().entries.size(),
            6u);
}

TEST_F(Stores, TheMarkChoosesTheGlobalStores) {
  handler.SetFloatVariable(MARK + "a", 2);
  handler.SetStringVariable("x" + MARK, "text");
  handler.AddToEntityList(std::string("l\xC2\xA7"), 7);
  EXPECT_EQ(handler.variables.size() + handler.stringVariables.size() + handler.entityLists.size(), 0u);
  ScenarioHandler other(global);
  EXPECT_EQ(other.ResolveFloat(MARK + "a"), 2);
  EXPECT_EQ(other.ResolveString("svar(x" + MARK), "text");
  EXPECT_EQ(other.ResolveEntityList(std::string("l\xC2\xA7")).size(), 1u);
}

TEST_F(Stores, BoolsAreLocalWhateverTheirName) {
  handler.SetBoolVariable(MARK + "b", true);
  ScenarioHandler other(global);
  EXPECT_FALSE(other.GetBoolVariable(MARK + "b"));
  EXPECT_TRUE(handler.GetBoolVariable(MARK + "b"));
}

TEST_F(Stores, AListHoldsNoIdTwice) {
  for (const std::uint64_t id : {5u, 6u, 5u})
    handler.AddToEntityList(std::string("l"), id);
  EXPECT_EQ(handler.ResolveEntityList(std::string("l")).vector(), (std::vector<std::uint64_t>{5, 6}));
  handler.RemoveFromEntityList("l", 5);
  handler.RemoveFromEntityList("missing", 5);
  EXPECT_EQ(handler.ResolveEntityList(std::string("l")).vector(), std::vector<std::uint64_t>{6});
  EXPECT_EQ(handler.entityLists.size(), 1u);
}

TEST_F(Stores, ClearingAMissingListMakesNone) {
  handler.ClearEntityList(std::string("missing"));
  handler.ClearEntityList(std::string("missing"), true);
  EXPECT_EQ(handler.entityLists.size(), 0u);
}

TEST_F(Stores, StringListsHoldNoTextTwice) {
  for (const char* text : {"a", "b", "a"})
    handler.AddToStringList("s", text);
  EXPECT_EQ(handler.GetStringList("s"), (std::vector<std::string>{"a", "b"}));
}

TEST_F(Stores, LocalRemovalLeavesTheGlobalStoreAlone) {
  handler.SetFloatVariable(MARK + "a", 1);
  handler.SetFloatVariable(std::string("b"), 2);
  handler.RemoveLocalVariable(MARK + "a");
  handler.RemoveLocalVariable("b");
  EXPECT_EQ(global->variables.size(), 1u);
  EXPECT_EQ(handler.variables.size(), 0u);
}

TEST_F(Stores, AReferenceLosesItsFirstFiveCharacters) {
  handler.SetStringVariable("r(name", "odd");
  EXPECT_EQ(handler.ResolveString(std::string("a svar(name")), "odd");
  EXPECT_EQ(handler.stringVariables.size(), 1u);
}

}
