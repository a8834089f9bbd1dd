#include "game_plugin/scenario/documentation/Dictionary.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/documentation/DocumentedNames.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"

namespace script::documentation {

namespace {

template <class Entry> DictionaryEntry describe(const Entry& entry, bool isCondition) {
  DictionaryEntry described;
  described.name = entry.name;
  described.isCondition = isCondition;
  described.description = entry.description;
  described.category = entry.category;
  ParameterReader in(described.parameters);
  entry.describe(in);
  return described;
}

}

void addToDictionary(Dictionary& dictionary, std::string_view name) {
  if (const ConditionEntry* condition = ScenarioConditions::find(name)) {
    dictionary.push_back(describe(*condition, true));
  } else if (const EffectEntry* effect = ScenarioEffects::find(name)) {
    dictionary.push_back(describe(*effect, false));
  } else {
    logError("Effect of type: " + std::string(name) + " can't be found.");
    logInfo("[MS] Error: AddToDictionary cant find: " + std::string(name));
  }
}

Dictionary makeDictionary() {
  Dictionary dictionary;
  for (const std::string_view name : documentedNames())
    addToDictionary(dictionary, name);
  return dictionary;
}

}
