// The reference files list entries in an order of their own, which no manifest has: what is missing there, or is there
// and nowhere else, shows here.
#include "game_plugin/scenario/documentation/DocumentedNames.h"

#include "game_plugin/scenario/documentation/Dictionary.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace script;
using namespace script::documentation;

namespace {

using Names = std::vector<std::string>;

/// Entries that scripts can name, but for the one that only `If` lines make.
std::set<std::string> namesOfManifests() {
  std::set<std::string> names;
  for (const ConditionGroup* group : ScenarioConditions::groups())
    for (const ConditionEntry* entry : group->chain)
      names.emplace(entry->name);
  for (const EffectGroup* group : ScenarioEffects::groups())
    for (const EffectEntry* entry : group->chain)
      names.emplace(entry->name);
  names.erase("UseConditionalBlock");
  return names;
}

TEST(DocumentedNames, BeginAndEndAsAuthorsKnowThem) {
  const auto names = documentedNames();
  ASSERT_GT(names.size(), 8u);
  EXPECT_EQ(Names(names.begin(), names.begin() + 5),
            (Names{"PlayerHasName", "OnHotkeyPressed", "IsDayTime", "IsEntityExisting", "IsCommandButtonClicked"}));
  EXPECT_EQ(Names(names.end() - 3, names.end()),
            (Names{"Editor_CreateUnit", "Editor_SetPropertyOverrideFlag", "SuppressCloudSync"}));
}

TEST(DocumentedNames, EachEntryOfAManifestIsListedOnce) {
  std::multiset<std::string> listed;
  for (const std::string_view name : documentedNames())
    listed.emplace(name);
  for (const std::string& name : namesOfManifests())
    EXPECT_EQ(listed.count(name), 1u) << name << " has no place in DocumentedNames.cpp, or more than one";
  EXPECT_EQ(listed.size(), std::set<std::string>(listed.begin(), listed.end()).size());
}

TEST(DocumentedNames, EachIsInAManifest) {
  const std::set<std::string> known = namesOfManifests();
  for (const std::string_view name : documentedNames())
    EXPECT_TRUE(known.contains(std::string(name))) << name << " stands in no manifest";
}

TEST(DocumentedNames, TheDictionaryHoldsThemInTheirOrder) {
  Names expected;
  for (const std::string_view name : documentedNames())
    expected.emplace_back(name);
  Names found;
  for (const DictionaryEntry& entry : makeDictionary())
    found.push_back(entry.name);
  EXPECT_EQ(found, expected);
}

}
