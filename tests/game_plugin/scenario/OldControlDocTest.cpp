#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include <gtest/gtest.h>
using namespace script;
namespace {
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
  for (const Described& row : rows) {
    std::vector<ParameterDocumentation> parameters;
    const EffectEntry* record = ScenarioEffects::find(row.name);
    ASSERT_NE(record, nullptr) << row.name;
    ParameterReader in(parameters);
    record->describe(in);
    EXPECT_EQ(record->category, row.category) << row.name;
    EXPECT_FALSE(record->description.empty()) << row.name;
    std::string described;
    for (const ParameterDocumentation& parameter : parameters)
      described += std::string(parameter.type) + " " + std::string(parameter.name) + "=" + parameter.defaultValue + ";";
    EXPECT_EQ(described, row.parameters) << row.name;
  }
}

/// Authors know these two by their words.
TEST(Catalogue, TheRegistrysOwnEffectsAreDescribedInTheirWords) {
  std::vector<ParameterDocumentation> parameters;
  ParameterReader in(parameters);
  ScenarioEffects::find("SendHint")->describe(in);
  ScenarioEffects::find("ShowDebuggingGui")->describe(in);
  EXPECT_EQ(ScenarioEffects::find("SendHint")->description, "Sends a hint message. Supervisor is not visible");
  EXPECT_EQ(ScenarioEffects::find("ShowDebuggingGui")->description,
            "Enables or disables the debugging gui. Usefull for events or to test some stuff out.");
  ASSERT_EQ(parameters.size(), 2u);
  EXPECT_EQ(parameters[0].description, "Message which will be displayed.");
  EXPECT_EQ(parameters[1].description, "true-> gui will be shown\nfalse->gui will be hidden");
}

}
