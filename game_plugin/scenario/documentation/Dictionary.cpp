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

bool isKnown(std::string_view name) { return ScenarioConditions::find(name) || ScenarioEffects::find(name); }

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
    // The catalogue still grows: what is yet to come is no fault that each start has to log.
    if (isKnown(name)) addToDictionary(dictionary, name);
  return dictionary;
}

}
