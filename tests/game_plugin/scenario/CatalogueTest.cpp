#include "game_plugin/scenario/ScenarioConditions.h"
#include "game_plugin/scenario/ScenarioEffects.h"
#include "game_plugin/scenario/language/ParameterReaders.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

using namespace script;

namespace {

template <class Group> std::vector<std::string> namesOf(const std::vector<const Group*>& groups) {
  std::vector<std::string> names;
  for (const Group* group : groups)
    for (const auto* entry : group->chain())
      names.emplace_back(entry->name);
  return names;
}

std::vector<std::string> effectNames() {
  const ScenarioEffects effects(nullptr);
  std::vector<std::string> names = namesOf(effects.groupsInCreationOrder());
  for (const EffectEntry* entry : ScenarioEffects::ownEntries())
    names.emplace_back(entry->name);
  return names;
}

/// Entry name to the stem of the file that closes it, for all sources below a folder of the module.
std::multimap<std::string, std::string> entriesInSources(const std::string& folder,
                                                         const std::vector<std::string>& macros) {
  std::multimap<std::string, std::string> entries;
  for (const auto& file :
       std::filesystem::recursive_directory_iterator(TIDEMARK_SOURCE_DIRECTORY "/game_plugin/scenario/" + folder)) {
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
  expectOneFileEach(namesOf(ScenarioConditions(nullptr).groupsInCreationOrder()),
                    entriesInSources("condition", {"CONDITION"}));
}

TEST(Catalogue, EachEffectHasItsLineAndItsFile) {
  expectOneFileEach(effectNames(), entriesInSources("Effekt", {"EFFECT", "EFFECT_OF_KIND"}));
}

template <class Expected, class Group> bool isGroup(const Group* group) {
  return dynamic_cast<const Expected*>(group) != nullptr;
}

TEST(Catalogue, ConditionGroupsAreMadeInOneOrderAndEvaluatedInAnother) {
  const ScenarioConditions conditions(nullptr);
  const auto creation = conditions.groupsInCreationOrder();
  const auto evaluation = conditions.groupsInEvaluationOrder();
  ASSERT_EQ(creation.size(), 6u);
  EXPECT_TRUE(isGroup<ScenarioConditions_Brill>(creation[0]));
  EXPECT_TRUE(isGroup<ScenarioConditions_Tarn>(creation[1]));
  EXPECT_TRUE(isGroup<ScenarioConditions_Event>(creation[2]));
  EXPECT_TRUE(isGroup<ComponentsAndVariablesConditions>(creation[3]));
  EXPECT_TRUE(isGroup<MPConditions>(creation[4]));
  EXPECT_TRUE(isGroup<GamepadConditions>(creation[5]));
  EXPECT_EQ(std::vector(creation.begin(), creation.begin() + 4),
            std::vector(evaluation.begin(), evaluation.begin() + 4));
  EXPECT_EQ(evaluation[4], creation[5]);
  EXPECT_EQ(evaluation[5], creation[4]);
}

TEST(Catalogue, EffectGroupsAreAskedInTheirOrder) {
  const ScenarioEffects effects(nullptr);
  const auto groups = effects.groupsInExecutionOrder();
  ASSERT_EQ(groups.size(), 9u);
  EXPECT_TRUE(isGroup<ScenarioEffects_Brill>(groups[0]));
  EXPECT_TRUE(isGroup<ScenarioEffects_Tarn>(groups[1]));
  EXPECT_TRUE(isGroup<ScenarioEffects_Event>(groups[2]));
  EXPECT_TRUE(isGroup<ComponentsAndVariablesEffects>(groups[3]));
  EXPECT_TRUE(isGroup<ScenarioEffects_Gui>(groups[4]));
  EXPECT_TRUE(isGroup<MPEffects>(groups[5]));
  EXPECT_TRUE(isGroup<PositionAndRotationEffects>(groups[6]));
  EXPECT_TRUE(isGroup<GamepadEffects>(groups[7]));
  EXPECT_TRUE(isGroup<ScenarioEffects_Editor>(groups[8]));
}

TEST(Catalogue, UnknownNamesAreNamedInTheLog) {
  const LogCapture log;
  EXPECT_EQ(ScenarioConditions(nullptr).create({"NoSuch"}), nullptr);
  EXPECT_EQ(log.count(2, "[MS] Error: Condition NoSuch was not found"), 1);
  EXPECT_EQ(ScenarioEffects(nullptr).create({"NoSuch"}), nullptr);
  EXPECT_EQ(log.count(4, "Effect of type: NoSuch can't be found."), 1);
  EXPECT_EQ(ScenarioConditions(nullptr).create({"Always"}), nullptr);
  EXPECT_EQ(log.lines.size(), 2u);
}

TEST(Catalogue, AGroupAnswersOnlyForItsOwn) {
  const ScenarioEffects effects(nullptr);
  const auto groups = effects.groupsInCreationOrder();
  EXPECT_NE(groups[0]->create({"SetVariable"}), nullptr);
  EXPECT_EQ(groups[1]->create({"SetVariable"}), nullptr);
  const DefaultEffect* returns = effects.create({"Return"});
  ASSERT_NE(returns, nullptr);
  EXPECT_FALSE(groups[0]->execute(*returns, 0)) << "the effect loop runs it itself";
}

struct Described {
  const char* name;
  const char* category;
  const char* parameters; ///< "type name=default", in order
};

/// What the reference shows of the entries that steer scripts.
TEST(Catalogue, EffectsOfScriptControlReadTheirParameters) {
  const Described rows[] = {
      {"Return", "ScriptControl", ""},
      {"SendHint", "General", "string Hint=;"},
      {"ShowDebuggingGui", "GUI", "bool =true;"},
      {"PrintTriggerInfo", "TidemarkScripts", ""},
      {"ActivateTrigger", "TidemarkScripts", "string Trigger Name=Trigger_1;bool Enable=false;"},
      {"ActivateGlobalTrigger", "TidemarkScripts", "string Trigger Name=Trigger_1;bool Enable=false;"},
      {"StartScenario", "TidemarkScripts", "string ScenarioFile=no_file;"},
      {"StopScenario", "TidemarkScripts", "string ScenrarioFile=no_file;"},
      {"SetVariable", "Variables", "string Variable=var;string value=0;"},
      {"VariableModify", "Variables",
       "string Value1=0;string Operation=+;string Value2=0;string Result=var;bool Round=true;"},
      {"SetVariableRandom", "Variables", "string MinValue=0;string MaxValue=1;string Variable=var;bool Round=true;"},
      {"ConvertEntityToVariable", "Variables", "string EntityList=no_list;string Index=0;string variablename=myvar;"},
      {"SetLocalVariableGlobal", "Variables", "string LocalVariable=no_var;string GlobalVariable=no_varG;"},
      {"SetLocalEntityListGlobal", "EntityLists", "string LocalEntiyList=no_list;string GlobalEntiyList=no_listG;"},
      {"SetStringVariableToValue", "StringVar", "string Variable=no_var;string Value=;"},
      {"WriteStringvarToEntityList", "Convertfunctions", "string EntityList=no_list;string stringvar=stringvar;"},
      {"DoLogEntry", "General", "string SeverityLevel=INFO;string Message=No Message inside;"},
      {"EnableFreeplayEvents", "Events", "bool Enable=true;"},
      {"StartEvent", "Events", "string Event Definition=EventDefinition;bool Unlock Win and Loose - Ability=false;"},
      {"AddFreeplayEventPool", "Events", "string Evenpool=em5/em5_eventpool/worldevents/MY_CUSTOM_WORLDEVENTPOOL;"},
  };
  const ScenarioEffects effects(nullptr);
  for (const Described& row : rows) {
    std::vector<ParameterDocumentation> parameters;
    const DocumentationScope scope(parameters);
    const DefaultEffect* record = effects.create({row.name});
    ASSERT_NE(record, nullptr) << row.name;
    EXPECT_EQ(record->category(), row.category) << row.name;
    EXPECT_FALSE(record->description().empty()) << row.name;
    std::string described;
    for (const ParameterDocumentation& parameter : parameters)
      described += parameter.type + " " + parameter.name + "=" + parameter.defaultValue + ";";
    EXPECT_EQ(described, row.parameters) << row.name;
  }
}

/// Authors know these two by their words.
TEST(Catalogue, TheRegistrysOwnEffectsAreDescribedInTheirWords) {
  const ScenarioEffects effects(nullptr);
  std::vector<ParameterDocumentation> parameters;
  const DocumentationScope scope(parameters);
  EXPECT_EQ(effects.create({"SendHint"})->description(), "Sends a hint message. Supervisor is not visible");
  EXPECT_EQ(effects.create({"ShowDebuggingGui"})->description(),
            "Enables or disables the debugging gui. Usefull for events or to test some stuff out.");
  ASSERT_EQ(parameters.size(), 2u);
  EXPECT_EQ(parameters[0].description, "Message which will be displayed.");
  EXPECT_EQ(parameters[1].description, "true-> gui will be shown\nfalse->gui will be hidden");
}

}
