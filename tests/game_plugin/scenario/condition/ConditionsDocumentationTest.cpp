#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/program/ParameterReader.h"

#include <gtest/gtest.h>

using namespace script;

namespace {

struct Described {
  const char* name;
  const char* category;
  const char* parameters; ///< "type name=default;", in order
};

// As authors know them from the reference, typing errors included.
const Described ENTRIES[] = {
    {"CanBeTowed", "Units", "string TargetList[in]=TargetList;string TargetList[out]=EntityListOut;"},
    {"IsSirenEnabled", "Units", "string EntitiesToCheck[in]=EntityList;string CheckedEntities[out]=EntityListOut;"},
    {"ObjectIsBurning", "Units", "string TargetList[in]=TargetList;string TargetList[out]=EntityListOut;"},
    {"SquadPersonInValidState", "Units", "string EntityList=EntitiesToCheck;string EntityListOut=no_list;"},
    {"SquadVehicleInValidState", "Units", "string EntityList=EntitiesToCheck;string EntityListOut=no_list;"},
    {"IsAnimationCurrentlyPlaying", "Units",
     "string EntitiesToCheck[in]=EntityList;string CheckedEntities[out]=EntityListOut;string Animationname (local "
     "asset name)=Animationname;"},
    {"HasParent", "Units", "string EntitiesToCheck[in]=EntityList;string CheckedEntities[out]=EntityListOut;"},
    {"UnitsInArea", "General",
     "uint64 CenterUnit=18446744073709551615;int Number=1;float Range=200;string LocalAssetName of counted units=No "
     "Asset Name Found;string Operator===;string EntityList[out]=;"},
    {"DistanceToUnit", "General",
     "string CenterUnit=no_list;string TargetUnit=no_list;string TargetUnit=200;string Operator===;string "
     "TargetUnitOut=no_list;"},
    {"UnitIsSelected", "General", "string EntityList=;bool AllUnitsFromListMustBeSelected=true;"},
    {"HasEquipment", "Units",
     "string EntityList=EntitiesToCheck;string Equipment=no_Equipment;string "
     "EntityListOutWithEquipment=no_list1;string EntityListOutWithoutEquipment=no_list2;"},
    {"HasName", "Units", "string EntityList=EntitiesToCheck;string LocalAssetName=Name;string EntityListOut=no_list;"},
    {"CurrentActionPriorityMaximum", "General",
     "string EntityList=EntitiesToCheck;string EntityListOut=no_list;string CompareValue=1;"},
    {"EntityListHasSize", "General", "string EntityList=EntitiesToCheck;string Operator===;string CompareValue=1;"},
    {"IsUnitInSensorArea", "Units",
     "string Area Entities=Area_Entities;string TargetList[in]=TargetList;string TargetList[out]=EntityListOut;"},
    {"IsAnyEntityInSensorArea", "Units",
     "string Area Entities=Area_Entities;string FilterComponent=em5::PersonComponent;string "
     "TargetList[out]=EntityListOut;"},
    {"DoorHasState", "Units",
     "string EntitiesToCheck[in]=EntityList;string CheckedEntities[out]=EntityListOut;string Door_State=DOOR_OPEN;"},
    {"IsOpenHouse", "General", "string EntityList=EntitiesToCheck;string EntityListOut=no_list;"},
    {"EntityHasComponent", "Units",
     "string EntityList=no_list;string Component=qsf::MetatDataComponent;string EntityList[out]=list_out;"},
    {"IsEntityExisting", "Misc", "string EntityList=no_list;"},
    {"IsDayTime", "Misc", "int MinHour=0;int MaxHour=24;int MinMinute=0;int MaxMinute=60;"},
    {"OnMousePressed", "InputEvents", "string MouseButton=Right;"},
    {"IsAnyEntitySelected", "Units", "string EntityList=no_list;bool ClearOldList=true;"},
    {"IsAnyEntityUnderMouse", "Units", "string EntityList=no_list;bool ClearOldList=true;"},
    {"HasSelectionMouseClickCommand", "Commands", "string Command=no_command;string EntityList=no_list;"},
    {"IsCommandButtonClicked", "Commands", "string CmdButtonId=noId;"},
    {"IsActionInPlan", "Units", "string EntityList=no_list;string ActionName=no_action;"},
    {"IsCurrentAction", "Units", "string EntityList=no_list;string ActionName=no_action;"},
    {"IsVehicleMoving", "Units", "string EntityList=no_list;"},
    {"IsScenarioActive", "General", "string ScenarioFile=no_file;"},
    {"ComponentPropertyContainsString", "Components",
     "string EntityList=;string Component=;string PropertyName=;string StringToCheck=;string EntityListOut=;"},
    {"ComponentPropertyMatchsString", "Components",
     "string EntityList=;string Component=;string PropertyName=;string StringToCheck=;string EntityListOut=;"},
    {"CompareComponentPropertyToFloatVariable", "Components",
     "string EntityList=;string Component=;string PropertyName=;string Operator===;string StringToCheck=;string "
     "EntityListOut=;"},
    {"ActionPlanIsEmpty", "Actions", "string EntityList=;string EntityListOut=;"},
    {"CompareEntityListSizes", "EntityLists", "string EntityList=;string Operator===;string EntityList2=;"},
    {"CompareEntityListSizeWithValue", "EntityLists", "string EntityList=;string Operator===;string Value=;"},
};

/// The record that documents a condition, and what its readers tell of the parameters.
struct Documentation {
  explicit Documentation(const std::string& name) {
    record = ScenarioConditions::find(name);
    if (!record) throw std::invalid_argument(name);
    ParameterReader in(parameters);
    record->describe(in);
  }
  const ConditionEntry* record;
  std::vector<ParameterDocumentation> parameters;
};

class ConditionDocumentationTest : public testing::TestWithParam<Described> {};

TEST_P(ConditionDocumentationTest, TellsCategoryNamesTypesAndDefaults) {
  const Documentation documentation(GetParam().name);
  EXPECT_EQ(documentation.record->category, GetParam().category);
  std::string described;
  for (const ParameterDocumentation& parameter : documentation.parameters)
    described += std::string(parameter.type) + " " + std::string(parameter.name) + "=" + parameter.defaultValue + ";";
  EXPECT_EQ(described, GetParam().parameters);
}

INSTANTIATE_TEST_SUITE_P(Entries, ConditionDocumentationTest, testing::ValuesIn(ENTRIES),
                         [](const testing::TestParamInfo<Described>& entry) { return entry.param.name; });

TEST(ConditionDocumentation, DescriptionsKeepTheirTypingErrors) {
  const std::string passed =
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria";
  for (const char* name : {"SquadPersonInValidState", "SquadVehicleInValidState", "CurrentActionPriorityMaximum"})
    EXPECT_EQ(Documentation(name).parameters[1].description, passed) << name;
  EXPECT_EQ(Documentation("HasName").parameters[2].description, passed);
  EXPECT_EQ(Documentation("HasEquipment").parameters[2].description, passed + ".");

  EXPECT_EQ(Documentation("HasName").record->description,
            "True if at least one entity is a valid vehicle and belongs to the player");
  EXPECT_EQ(Documentation("OnMousePressed").parameters[0].description,
            "hich mouseButton should be used.<br>Right, Left");
  EXPECT_EQ(Documentation("CompareEntityListSizes").parameters[1].description,
            "String that we hope to find inside the Property-Value");
}

}
