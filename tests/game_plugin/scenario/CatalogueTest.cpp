#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "tests/support/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

using namespace script;

namespace {

template <class Groups> std::vector<std::string> namesOf(const Groups& groups) {
  std::vector<std::string> names;
  for (const auto* group : groups)
    for (const auto* entry : group->chain)
      names.emplace_back(entry->name);
  return names;
}

/// Entry name to the stem of the file that closes it, for all sources below a folder of the module.
std::multimap<std::string, std::string> entriesInSources(const std::string& folder,
                                                         const std::vector<std::string>& macros) {
  std::multimap<std::string, std::string> entries;
  for (const auto& file :
       std::filesystem::recursive_directory_iterator(paths::sourceDirectory() + "/game_plugin/scenario/" + folder)) {
    if (file.path().extension() != ".cpp") continue;
    std::ifstream stream(file.path());
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    for (const std::string& macro : macros) {
      const std::string opening = "\n" + macro + "(";
      for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, at + 1)) {
        const std::size_t name = text.find_first_not_of(" \n", at + opening.size());
        entries.emplace(text.substr(name, text.find_first_of(" \n,", name) - name), file.path().stem().string());
      }
    }
  }
  return entries;
}

void expectOneFileEach(const std::vector<std::string>& listed, const std::multimap<std::string, std::string>& sources) {
  const std::set<std::string> names(listed.begin(), listed.end());
  EXPECT_EQ(names.size(), listed.size()) << "an entry stands in two manifests";
  for (const std::string& name : names)
    EXPECT_EQ(sources.count(name), 1u) << name << " needs one file";
  for (const auto& [name, file] : sources) {
    EXPECT_TRUE(names.count(name)) << name << " stands in no manifest";
    EXPECT_EQ(name, file) << "a file is named after its entry";
  }
}

TEST(Catalogue, EachConditionHasItsLineAndItsFile) {
  expectOneFileEach(namesOf(ScenarioConditions::groups()),
                    entriesInSources("condition", {"CONDITION", "CONDITION_WITHOUT_TEST"}));
}

TEST(Catalogue, EachEffectHasItsLineAndItsFile) {
  expectOneFileEach(namesOf(ScenarioEffects::groups()), entriesInSources("Effekt", {"EFFECT", "EFFECT_OF_KIND"}));
}

using Names = std::vector<std::string_view>;

template <class Groups> Names groupNames(const Groups& groups) {
  Names names;
  for (const auto* group : groups)
    names.push_back(group->name);
  return names;
}

TEST(Catalogue, GroupsAreAskedInTheirOrder) {
  EXPECT_EQ(groupNames(ScenarioConditions::groups()),
            (Names{"ScenarioConditions_Brill", "ScenarioConditions_Tarn", "ScenarioConditions_Event",
                   "ComponentsAndVariablesConditions", "MPConditions", "GamepadConditions"}));
  EXPECT_EQ(groupNames(ScenarioEffects::groups()),
            (Names{"", "ScenarioEffects_Brill", "ScenarioEffects_Tarn", "ScenarioEffects_Event",
                   "ComponentsAndVariablesEffects", "ScenarioEffects_Gui", "MPEffects", "PositionAndRotationEffects",
                   "GamepadEffects", "ScenarioEffects_Editor"}));
}

TEST(Catalogue, ANameLeadsToItsEntry) {
  for (const ConditionGroup* group : ScenarioConditions::groups())
    for (const ConditionEntry* entry : group->chain)
      EXPECT_EQ(ScenarioConditions::find(entry->name), entry) << entry->name;
  for (const EffectGroup* group : ScenarioEffects::groups())
    for (const EffectEntry* entry : group->chain)
      EXPECT_EQ(ScenarioEffects::find(entry->name), entry) << entry->name;
  for (const char* name : {"", "NoSuch", "setvariable", "SetVariable ", "CompareValues"})
    EXPECT_EQ(ScenarioEffects::find(name), nullptr) << name;
  for (const char* name : {"Always", "SetVariable", "If"})
    EXPECT_EQ(ScenarioConditions::find(name), nullptr) << name;
}

TEST(Catalogue, EveryEntryCanBeTestedOrRun) {
  for (const ConditionGroup* group : ScenarioConditions::groups())
    for (const ConditionEntry* entry : group->chain)
      EXPECT_EQ(entry->test == nullptr, entry->name == "GamepadPOVIsPressed") << entry->name;
  for (const EffectGroup* group : ScenarioEffects::groups())
    for (const EffectEntry* entry : group->chain)
      EXPECT_EQ(entry->run != nullptr, entry->kind == EffectKind::ORDINARY) << entry->name;
}

struct Parameters {
  std::string_view entry;
  ParameterReader::Documentation all;

  const ParameterDocumentation* at(int index) const {
    for (const ParameterDocumentation& parameter : all)
      if (parameter.index == index) return &parameter;
    return nullptr;
  }
};

/// What every entry tells of its parameters.
std::vector<Parameters> describeAll() {
  std::vector<Parameters> described;
  const auto describe = [&](const auto& groups) {
    for (const auto* group : groups)
      for (const auto* entry : group->chain) {
        described.push_back({entry->name, {}});
        ParameterReader in(described.back().all);
        entry->describe(in);
      }
  };
  describe(ScenarioConditions::groups());
  describe(ScenarioEffects::groups());
  return described;
}

/// A parameter without a name throws when it is missing, so each one that has none is meant to.
TEST(Catalogue, ParametersHaveNamesButForThoseThatNeverHad) {
  std::vector<std::string> unnamed;
  for (const Parameters& parameters : describeAll())
    for (const ParameterDocumentation& parameter : parameters.all)
      if (parameter.name.empty())
        unnamed.push_back(std::string(parameters.entry) + " " + std::to_string(parameter.index));
  EXPECT_EQ(unnamed, (std::vector<std::string>{"ShowDebuggingGui 1", "UseConditionalBlock 1", "UseConditionalBlock 2",
                                               "StartScriptedEvent 4", "SetupBurningBuildingWithTrappedPersons 4",
                                               "SetupBurningBuildingWithTrappedPersons 6"}));
}

TEST(Catalogue, ParametersStandSideBySideFromTheFirstPlaceOn) {
  for (const Parameters& parameters : describeAll())
    for (int index = 1; index <= static_cast<int>(parameters.all.size()); ++index)
      EXPECT_NE(parameters.at(index), nullptr) << parameters.entry << " has no parameter " << index;
}

TEST(Catalogue, TheRoleOfAParameterIsOneOfItsType) {
  const auto typeOf = [](ParameterRole role) -> std::string_view {
    switch (role) {
    case ParameterRole::FLAG:
      return "bool";
    case ParameterRole::INTEGER:
      return "int";
    case ParameterRole::DECIMAL:
      return "float";
    case ParameterRole::ID:
      return "uint64";
    default:
      return "string";
    }
  };
  for (const Parameters& parameters : describeAll())
    for (const ParameterDocumentation& parameter : parameters.all) {
      ASSERT_LT(parameter.role, ParameterRole::COUNT) << parameters.entry;
      EXPECT_EQ(parameter.type, typeOf(parameter.role)) << parameters.entry << " " << parameter.index;
    }
}

TEST(Catalogue, APropertyIsOneOfAComponentThatTheLineNames) {
  for (const Parameters& parameters : describeAll())
    for (const ParameterDocumentation& parameter : parameters.all) {
      if (parameter.role != ParameterRole::PROPERTY) {
        EXPECT_EQ(parameter.componentIndex, 0) << parameters.entry << " " << parameter.index;
        continue;
      }
      const ParameterDocumentation* component = parameters.at(parameter.componentIndex);
      ASSERT_NE(component, nullptr) << parameters.entry;
      EXPECT_EQ(component->role, ParameterRole::COMPONENT) << parameters.entry << " " << parameter.index;
    }
}

TEST(Catalogue, WhereOneOfSomeWordsIsExpectedTheWordsAreTold) {
  for (const Parameters& parameters : describeAll())
    for (const ParameterDocumentation& parameter : parameters.all) {
      const bool hasWords = parameter.role == ParameterRole::WORDS || parameter.role == ParameterRole::COMPARISON ||
                            parameter.role == ParameterRole::FLAG;
      EXPECT_EQ(!parameter.words.empty(), hasWords) << parameters.entry << " " << parameter.index;
      const std::set<std::string_view> words(parameter.words.begin(), parameter.words.end());
      EXPECT_EQ(words.size(), parameter.words.size()) << parameters.entry << " tells a word twice";
    }
}

TEST(Catalogue, RolesHaveNamesThatTellThemApart) {
  std::set<std::string_view> names;
  for (std::size_t role = 0; role < static_cast<std::size_t>(ParameterRole::COUNT); ++role)
    names.insert(nameOf(static_cast<ParameterRole>(role)));
  EXPECT_EQ(names.size(), static_cast<std::size_t>(ParameterRole::COUNT));
  EXPECT_FALSE(names.contains(""));
}

}
