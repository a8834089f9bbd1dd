#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "game_plugin/scenario/program/ParameterReader.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace script;

namespace {

struct Parameter {
  std::string type, name, defaultValue;
  friend bool operator==(const Parameter&, const Parameter&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Parameter& parameter) {
    return out << parameter.type << " \"" << parameter.name << "\" = \"" << parameter.defaultValue << "\"";
  }
};

struct Documented {
  const char* name;
  const char* category;
  std::vector<Parameter> parameters;
};

// Names and defaults as authors know them from the reference, typing errors included.
const Documented ENTRIES[] = {
    {"SetComponentProperty",
     "Components",
     {{"string", "EntityList", "my_entities"},
      {"string", "ComponentName", "em5::PersonComponent"},
      {"string", "Property", "Active"},
      {"string", "Value", "1"}}},
    {"SetPropertyFromComponentByCampReflection",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Variable", "no_var"},
      {"string", "Value", "no_value"}}},
    {"SetProperty",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Property", "property_name"},
      {"string", "Value", "no_value"}}},
    {"LogComponentValue",
     "Components",
     {{"string", "Component", "no_list"}, {"string", "Component", "no_list"}, {"string", "Variable", "no_list"}}},
    {"LogComponentArrayValue",
     "Components",
     {{"string", "Component", "no_list"}, {"string", "Component", "no_list"}, {"string", "Property", "no_list"}}},
    {"LogAllComponentProperties",
     "Components",
     {{"string", "Component", "no_list"}, {"string", "Component", "qsf::MetaDataComponent"}}},
    {"LogAllComponentsFromEntity", "Components", {{"string", "Component", "no_list"}}},
    {"WriteComponentPropertyToStringvar",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "Component", "no_list"},
      {"string", "Property", "Active"},
      {"string", "StringVar", "no_list"},
      {"bool", "WriteLogEntry", "false"}}},
    {"writeComponentPropertyToEntityList",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "Component", "no_list"},
      {"string", "Property", "Active"},
      {"string", "EntityList[out]", "no_list"},
      {"bool", "ClearListBefore", "false"}}},
    {"WriteArrayEntriesIntoEntityList",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Property", "property_name"},
      {"bool", "Clear EntityList[out]", "true"},
      {"string", "EntityList[out]", "no_list"}}},
    {"WriteArrayEntriesIntoTheLog",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Property", "no_var"}}},
    {"AddEntryToPropertyArray",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Property Name", "no_var"},
      {"string", "my_value", "new_value"}}},
    {"RemoveEntryFromPropertyArray",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Property Name", "no_var"},
      {"string", "Value", "my_value"}}},
    {"CreateComponentById",
     "Components",
     {{"string", "EntityList", "no_list"}, {"string", "ComponentName", "no_component"}}},
    {"WriteCameraEntityToEntityList", "EntityLists", {{"string", "EntityListOut", "no_list"}}},
    {"WriteCoreEntityToEntityList", "EntityLists", {{"string", "EntityListOut", "no_list"}}},
    {"ToggleVariableValue",
     "Variables",
     {{"string", "Variable", "no_variable"}, {"string", "Value1", "0"}, {"string", "Value2", "1"}}},
    {"ToggleStringvarValue",
     "StringVar",
     {{"string", "StringVar", "no_variable"}, {"string", "Value1", "0"}, {"string", "Value2", "1"}}},
    {"ConvertVariableToStringvar",
     "StringVar",
     {{"string", "Variable", "no_variable"}, {"string", "StringVar", "no_StringVar"}}},
    {"ConvertStringvarToVariable",
     "Variables",
     {{"string", "Variable", "no_variable"}, {"string", "StringVar", "no_StringVar"}}},
    {"AppendStringToStringVar",
     "StringVar",
     {{"string", "Modified_StringVar", "no_StringVar"}, {"string", "AppendedString", "no_StringVar"}}},
    {"PickUnitsFromEntityList",
     "EntityLists",
     {{"string", "EntityList", "no_list"},
      {"string", "NewEntityList", "no_list"},
      {"bool", "ClearNewListBefore", "true"},
      {"string", "MaxNumber", "1"},
      {"string", "Range", "9999999"}}},
    {"PickClosestUnitsFromEntityList",
     "EntityLists",
     {{"string", "EntityList", "no_list"},
      {"string", "NewEntityList", "no_list"},
      {"bool", "ClearNewList", "true"},
      {"string", "MaxNumber", "1"},
      {"string", "Center Unit", "empty_list"}}},
    {"AddUnitsFromTypeToEntityList",
     "EntityLists",
     {{"string", "EntityList[out]", "no_list"},
      {"string", "UnitType", "PlayerVehicle"},
      {"bool", "Delete old entities", "false"},
      {"string", "MaxNumber", "1"},
      {"uint64", "CenterUnit", "18446744073709551615"},
      {"string", "Radius", "200"}}},
    {"AddEntityToEntityList",
     "EntityLists",
     {{"string", "EntityList_WhichShouldBeAdded", "no_list"}, {"string", "EntityList_WhichIsIncreased", "no_list"}}},
    {"GetSizeOfEntityList",
     "EntityLists",
     {{"string", "EntityList", "no_list"}, {"string", "EntityCountVar", "no_var"}}},
    {"ClearEntityIdList", "EntityLists", {{"string", "EntityList", "no_list"}, {"bool", "Delete the list", "false"}}},
    {"AddSelectionToEntityIdList",
     "EntityLists",
     {{"string", "EntityList", "no_list"}, {"bool", "Delete old entities", "false"}}},
    {"RemoveInvalidEntitiesFromList", "EntityLists", {{"string", "EntityList", "no_list"}}},
    {"GetNextEntryFromEntityList",
     "EntityList",
     {{"string", "EntityList", "no_list"}, {"string", "index", "index_var"}, {"string", "EntityListOUT", "no_list"}}},
    {"GetEntitiesOutOfEntityList", "EntityLists", {{"string", "EntityList", "no_list"}, {"int", "Number", "-1"}}},
    {"GetAllEntitiesWithComponent",
     "EntityLists",
     {{"string", "EntityList", "no_list"}, {"string", "ComponentName", "no_component"}, {"bool", "ClearList", "true"}}},
    {"RemoveAllEntitiesWithComponent",
     "EntityLists",
     {{"string", "EntityList", "no_list"}, {"string", "ComponentName", "no_component"}}},
    {"RemoveAllEntitiesWithoutComponent",
     "EntityLists",
     {{"string", "EntityList", "no_list"}, {"string", "Component", "no_comp"}}},
    {"GetAllEntitiesWithName",
     "",
     {{"string", "EntityList", "no_list"}, {"string", "EntityName", "no_name"}, {"bool", "ClearListBefore", "true"}}},
    {"RemoveAllEntitiesWithName", "", {{"string", "EntityList", "no_list"}, {"string", "EntityName", "no_name"}}},
    {"GetEntityChildWithDescription",
     "EntityLists",
     {{"string", "EntityList Caller", "no_list"},
      {"string", "EntityList Out", "no_list"},
      {"string", "Description", "no_descriotion"},
      {"bool", "ClearListBefore", "true"}}},
    {"GetEquipmentEntitesFromEntityList",
     "EntityLists",
     {{"string", "EntityList Units", "no_list"}, {"string", "EntityListEquipment[out]", "no_list"}}},
    {"SetTransform",
     "Units",
     {{"string", "EntityList", "empty_list"},
      {"bool", ".SetPosition", "true"},
      {"string", "Position", "0 0 0"},
      {"bool", "SetRotation", "false"},
      {"string", ".Rotation", "0 0 0"},
      {"string", "CopyTransformationFromUnit", ""}}},
    {"SetLocalTransform",
     "Units",
     {{"string", "EntityList", "no_list"},
      {"string", "ParentEntity", "no_list"},
      {"bool", "SetPosition", "true"},
      {"string", "Position", "0 0 0"},
      {"bool", "SetRotation", "true"},
      {"string", "Rotation", "0 0 0"}}},
    {"GetTransform",
     "",
     {{"string", "EntityList", "no_list"},
      {"string", "PositionVariable", "no_var"},
      {"string", "RotationVariable", "no_var"}}},
    {"RotateObject", "Units", {{"string", "EntityList", "no_list"}, {"string", "RotationVector", "0 1 0"}}},
    {"SetEntityPositionToPositionUnderMouse",
     "Units",
     {{"string", "EntityList", "no_list"}, {"string", "Precision", "no_list"}}},
    {"SpawnObject",
     "Units",
     {{"string", "LocalAssetName", "LocalAssetNotFound"},
      {"string", "AddToEntityList", ""},
      {"bool", ".SetPosition", "true"},
      {"string", "Position", "0 0 0"},
      {"bool", "SetRotation", "true"},
      {"string", ".Rotation", "0 0 0"},
      {"string", "SpawnPointUnit", ""}}},
    {"DestroyObject", "Units", {{"string", "EntityList", "no_list"}}},
    {"DestroyComponent",
     "Components",
     {{"string", "EntityList", "no_list"}, {"string", "ComponentName", "em5::MoveToDespawnComponent"}}},
    {"CreateComponent",
     "Components",
     {{"string", "EntityList Caller", "no_list"}, {"string", "Component", "no_Component"}}},
    {"ActivateComponent",
     "Components",
     {{"string", "Component", "no_component"},
      {"string", "EntityList", "empty_list"},
      {"bool", "ActivateComponent", "true"}}},
    {"SetVariableFromComponent",
     "Components",
     {{"string", "EntityList", "no_list"},
      {"string", "ComponentName", "no_component"},
      {"string", "Variable", "no_var"},
      {"string", "Value", "no_value"}}},
    {"LinkEntityToParent",
     "Units",
     {{"string", "EntityList[Childs]", "no_list"}, {"string", "ParentEntity", "no_list"}}},
    {"UnlinkFromParent", "Units", {{"string", "EntityList", "no_list"}}},
    {"SetName", "Units", {{"string", "UnitName", "Standart"}, {"string", "EntityList", "no_list"}}},
    {"FadeInOut",
     "Units",
     {{"string", "EntityList", "no_list"},
      {"bool", "FadeIn", "true"},
      {"string", "Time", "1.0"},
      {"bool", "DeleteOwner", "false"}}},
};

struct Described {
  const char* name;
  const char* description;
};

const Described DESCRIPTIONS[] = {
    {"SetComponentProperty", "Set a property from a component to a specific value"},
    {"SetPropertyFromComponentByCampReflection", "Set a variable from a component to a specific value (notice that "
                                                 "this is the old name - the new name is SetComponentProperty)"},
    {"SetProperty", "Set a variable from a component to a specific value (notice that this is the old name - the new "
                    "name is SetComponentProperty)"},
    {"LogComponentValue", "Logs the value of a component. Will log errors if it isnt possible"},
    {"LogComponentArrayValue", "Logs the ARRAY-value of a component. Will log errors if it isnt possible"},
    {"LogAllComponentProperties",
     "Prints all Property-Names from your Component to the log (which are connected to the CampReflectionSystem).<br> "
     "It also shows the current values BUT only the first entry in case the property is an Array"},
    {"LogAllComponentsFromEntity", "Writes all Components of the current EntityList into the Log"},
    {"WriteComponentPropertyToStringvar", "Reads a component value and insert it into the stringvar"},
    {"writeComponentPropertyToEntityList",
     "Reads a component value and insert it into the entitylist. Supports array properties"},
    {"WriteArrayEntriesIntoEntityList", "Writes all entries from your array property into an entitiylist"},
    {"WriteArrayEntriesIntoTheLog", "Writes all entries from your array property into the Log"},
    {"AddEntryToPropertyArray", "Inserts an Element with a given value to an existing array"},
    {"RemoveEntryFromPropertyArray", "Remove an Element with a given value from an existing array"},
    {"CreateComponentById", "Create a component by a given Id and log the name if it was possible"},
    {"WriteCameraEntityToEntityList", "Write the Entity which contains the PlayerCamera to a EntityList which is "
                                      "cleared before. We expect that it should have the id=1"},
    {"WriteCoreEntityToEntityList",
     "Write the Entity with the id=0 to a EntityList which is cleared before. The entity contains cool things which "
     "you might want to access like the em5::WeatherComponent"},
    {"ToggleVariableValue",
     "Shortcout for:<br> if(Variable == Value1)<br>\tVariable = Value2; <br>else<br>Variable = Value1;"},
    {"ToggleStringvarValue",
     "Shortcout for:<br> if(StringVar == Value1)<br>\tStringVar = Value2; <br>else<br>StringVar = Value1;"},
    {"ConvertVariableToStringvar", "Converts a Variable (float) to a Stringvar (string). This makes it possible to use "
                                   "Variables for setting Component Properties after Converting them"},
    {"ConvertStringvarToVariable", "Converts a String/StringVar to a Variable. Will thow an error in case of failure"},
    {"AppendStringToStringVar", "Modifies a Stringvar by Appending a string"},
};

struct ParametersDescribed {
  const char* name;
  std::vector<std::string> descriptions;
};

const ParametersDescribed PARAMETER_DESCRIPTIONS[] = {
    {"SetComponentProperty",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which variable of the component should be affected", "Which value should be used for the property"}},
    {"SetPropertyFromComponentByCampReflection",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which variable of the component should be affected", "Which value should be used for the variable"}},
    {"SetProperty",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which property of the component should be affected", "Which value should be used for the property"}},
    {"LogComponentValue",
     {"Units which shall be checked", "The name of the Component", "a property <-> an example is \"Active\""}},
    {"LogComponentArrayValue",
     {"Units which shall be checked", "The name of the Component", "a property <-> an example is \"Lights\""}},
    {"LogAllComponentProperties", {"Units which has the Component", "The name of the Component"}},
    {"LogAllComponentsFromEntity", {"Units which has the Component"}},
    {"WriteComponentPropertyToStringvar",
     {"Units which shall be checked", "The name of the Component",
      "The name of the property from which you want to read", "The name of the stringvar",
      "If true it will write a log entry with the current value of the readed property"}},
    {"writeComponentPropertyToEntityList",
     {"Units which shall be checked", "The name of the Component",
      "The name of the property from which you want to read", "The name of the returned entitylist",
      "If true it will write the entries into a new list"}},
    {"WriteArrayEntriesIntoEntityList",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "How is the property called where you want to read from", "Shall the EntityList[out] be cleared before?",
      "Entity or entityList, which should be affected"}},
    {"WriteArrayEntriesIntoTheLog",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which Property of the component should be affected"}},
    {"AddEntryToPropertyArray",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which variable of the component should be affected", "the newly added vlue"}},
    {"RemoveEntryFromPropertyArray",
     {"Entity or entityList, which should be affected", "Which component should be affected",
      "Which variable of the component should be affected", "Which variable of the component should be affected"}},
    {"CreateComponentById", {"Entity or entityList, which should be affected", "Id of component"}},
    {"WriteCameraEntityToEntityList", {"Outputs the entity which contains the PlayerCamera"}},
    {"WriteCoreEntityToEntityList", {"Outputs the entity which contains the PlayerCamera"}},
    {"ToggleVariableValue", {"Variable that should change", "Value1", "Value2"}},
    {"ToggleStringvarValue", {"Variable that should change", "Value1", "Value2"}},
    {"ConvertVariableToStringvar", {"Variable from which we read", "StringVar which we want to set"}},
    {"ConvertStringvarToVariable", {"Variable which we want to set", "StringVar from which we read"}},
    {"AppendStringToStringVar",
     {"StringVar which gets stuff appended", "String that gets appended to the first Parameter"}},
};

/// What the entry's readers describe; `record` gets the record that they made.
std::vector<ParameterDocumentation> document(const std::string& name, const EffectEntry*& record) {
  std::vector<ParameterDocumentation> parameters;
  record = ScenarioEffects::find(name);
  ParameterReader in(parameters);
  record->describe(in);
  return parameters;
}

TEST(EntityEffectsDocumentation, ParametersHaveTheirNamesTypesAndDefaults) {
  for (const Documented& entry : ENTRIES) {
    SCOPED_TRACE(entry.name);
    const EffectEntry* record = nullptr;
    std::vector<Parameter> parameters;
    for (const ParameterDocumentation& parameter : document(entry.name, record)) {
      parameters.push_back({std::string(parameter.type), std::string(parameter.name), parameter.defaultValue});
      EXPECT_FALSE(parameter.description.empty());
    }
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->name, entry.name);
    EXPECT_EQ(record->category, entry.category);
    EXPECT_EQ(parameters, entry.parameters);
  }
}

TEST(EntityEffectsDocumentation, DescriptionsAreThoseOfTheReference) {
  for (const Described& entry : DESCRIPTIONS) {
    const EffectEntry* record = nullptr;
    document(entry.name, record);
    ASSERT_NE(record, nullptr) << entry.name;
    EXPECT_EQ(record->description, entry.description) << entry.name;
  }
}

TEST(EntityEffectsDocumentation, ParameterDescriptionsAreThoseOfTheReference) {
  for (const ParametersDescribed& entry : PARAMETER_DESCRIPTIONS) {
    const EffectEntry* record = nullptr;
    std::vector<std::string> descriptions;
    for (const ParameterDocumentation& parameter : document(entry.name, record))
      descriptions.emplace_back(parameter.description);
    EXPECT_EQ(descriptions, entry.descriptions) << entry.name;
  }
}

TEST(EntityEffectsDocumentation, TheTwoEntriesByNameAreUndescribed) {
  for (const char* name : {"GetAllEntitiesWithName", "RemoveAllEntitiesWithName"}) {
    const EffectEntry* record = nullptr;
    document(name, record);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->description, "");
  }
}

}
