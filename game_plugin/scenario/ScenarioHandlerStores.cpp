#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/shared/RemainingIds.h"
#include "game_plugin/scenario/stores/JsonStore.h"

#include "qsf/Qsf.h"
#include "qsf/base/Random.h"

#include <algorithm>

namespace script {

namespace {

/// Erases every entry of that name. The walk goes on at the next index after an erase, as it always did; names are
/// unique, so nothing is missed.
template <class Value> void eraseAllNamed(Store<Value>& store, const std::string& name) {
  for (std::size_t i = 0; i < store.size(); ++i)
    if (store.name(i) == name) store.erase(i);
}

}

/// Index of the argument's entry, appended if it is missing. Costs no search while the store has the epoch of the last
/// use.
template <class Value>
std::size_t ScenarioHandler::Locate(const Argument& argument, std::string_view name, Store<Value>& store) {
  if (argument.mEpoch != store.epoch()) {
    argument.mSlot = static_cast<std::uint32_t>(store.findOrAppend(name));
    argument.mEpoch = store.epoch();
  }
  return argument.mSlot;
}

float ScenarioHandler::SearchFloat(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (info.isNumber) return info.number;
  Store<float>& store = VariablesOf(info.isGlobal);
  return store.value(Locate(argument, info.text, store));
}

float ScenarioHandler::ResolveFloat(const std::string& text) {
  float number = 0;
  if (textToFloat(text, number)) return number;
  Store<float>& store = VariablesOf(isGlobalName(text));
  return store.value(store.findOrAppend(text));
}

const std::string& ScenarioHandler::ResolveString(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (!info.isVariableReference) return info.text;
  Store<std::string>& store = StringVariablesOf(info.isReferenceGlobal);
  return store.value(Locate(argument, info.referencedName(), store));
}

std::string ScenarioHandler::ResolveString(const std::string& text) {
  if (text.find("svar(") == std::string::npos) return text;
  const std::string name = text.substr(5); // whatever stood before "svar("; other places give a senseless name
  Store<std::string>& store = StringVariablesOf(isGlobalName(name));
  return store.value(store.findOrAppend(name));
}

EntityIds ScenarioHandler::ResolveEntityList(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (info.ids) return EntityIds(*info.ids);
  Store<EntityList>& store = EntityListsOf(info.isGlobal);
  return EntityIds(store.value(Locate(argument, info.text, store)).ids());
}

EntityIds ScenarioHandler::ResolveEntityList(const std::string& text) {
  EntityIds ids;
  if (textToIds(text, ids.vector())) return ids;
  Store<EntityList>& store = EntityListsOf(isGlobalName(text));
  return EntityIds(store.value(store.findOrAppend(text)).ids());
}

std::size_t ScenarioHandler::GetEntityListSize(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (info.ids) return info.ids->size();
  Store<EntityList>& store = EntityListsOf(info.isGlobal);
  return store.value(Locate(argument, info.text, store)).size();
}

bool ScenarioHandler::IsInEntityList(const Argument& argument, std::uint64_t id) {
  const ArgumentText& info = argument.info();
  if (info.ids) return std::find(info.ids->begin(), info.ids->end(), id) != info.ids->end();
  Store<EntityList>& store = EntityListsOf(info.isGlobal);
  return store.value(Locate(argument, info.text, store)).contains(id);
}

bool ScenarioHandler::SplitVecInXYZ(const Argument& argument, float& x, float& y, float& z) {
  return SplitVecInXYZ(argument.text(), x, y, z);
}

bool ScenarioHandler::SplitVecInXYZ(const std::string& text, float& x, float& y, float& z) {
  const std::vector<std::string> pieces = splitAtBlanks(ResolveString(text));
  if (pieces.size() != 3) {
    logInfo("ScenarioHandler::SplitVecInXYZ: cant read your Position argument. Expected 3 parameters (like \"100.5 0 "
            "70\")  and got " +
            std::to_string(pieces.size()) + " parameters");
    return false;
  }
  x = ResolveFloat(pieces[0]);
  y = ResolveFloat(pieces[1]);
  z = ResolveFloat(pieces[2]);
  return true;
}

void ScenarioHandler::SearchAndSetFloat(const Argument& name, float value) {
  // A name that reads as a number is stored all the same; no use of it will ever see the entry.
  const ArgumentText& info = name.info();
  Store<float>& store = VariablesOf(info.isGlobal);
  store.value(info.isNumber ? store.findOrAppend(info.text) : Locate(name, info.text, store)) = value;
}

void ScenarioHandler::SetFloatVariable(const std::string& name, float value) {
  Store<float>& store = VariablesOf(isGlobalName(name));
  store.value(store.findOrAppend(name)) = value;
}

void ScenarioHandler::SetStringVariable(const std::string& name, const std::string& value) {
  Store<std::string>& store = StringVariablesOf(isGlobalName(name));
  store.value(store.findOrAppend(name)) = value;
}

void ScenarioHandler::AddToEntityList(const Argument& name, std::uint64_t id) {
  Store<EntityList>& store = EntityListsOf(name.info().isGlobal);
  store.value(Locate(name, name.text(), store)).add(id);
}

void ScenarioHandler::AddToEntityList(const std::string& name, std::uint64_t id) {
  Store<EntityList>& store = EntityListsOf(isGlobalName(name));
  store.value(store.findOrAppend(name)).add(id);
}

void ScenarioHandler::RemoveFromEntityList(const std::string& name, std::uint64_t id) {
  Store<EntityList>& store = EntityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (index != store.NOT_FOUND) store.value(index).remove(id);
}

void ScenarioHandler::RemoveFromEntityList(const std::string& name, std::span<const std::uint64_t> sortedIds) {
  Store<EntityList>& store = EntityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (index != store.NOT_FOUND) store.value(index).removeAll(sortedIds);
}

void ScenarioHandler::ClearEntityList(const Argument& name, bool removeList) {
  Store<EntityList>& store = EntityListsOf(name.info().isGlobal);
  if (!removeList && name.mEpoch == store.epoch())
    store.value(name.mSlot).clear();
  else
    ClearEntityList(name.text(), removeList);
}

void ScenarioHandler::ClearEntityList(const std::string& name, bool removeList) {
  Store<EntityList>& store = EntityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (!removeList) {
    if (index != store.NOT_FOUND) store.value(index).clear();
    return;
  }
  if (&store != &entityLists && index != store.NOT_FOUND) {
    // Kept: removing a global list erases the local list at the same place and leaves the global one.
    entityLists.erase(index);
    return;
  }
  const std::size_t local = entityLists.find(name);
  if (local != entityLists.NOT_FOUND) entityLists.erase(local);
}

void ScenarioHandler::AddToEntityListByTypeInArea(const std::string& name, const std::string& unitType,
                                                  std::uint32_t count, std::uint64_t centerId, float range) {
  RemainingIds candidates(findEntitiesOfUnitType(unitType, centerId, range));
  for (std::uint32_t i = 0; i < count && candidates.size() > 0; ++i) {
    const int drawn = qsf::Random::getRandomInt(0, static_cast<int>(candidates.size()) - 1);
    AddToEntityList(name, candidates.take(static_cast<std::size_t>(drawn)));
  }
}

void ScenarioHandler::SetBoolVariable(const std::string& name, bool value) {
  boolVariables.value(boolVariables.findOrAppend(name)) = value;
}

bool ScenarioHandler::GetBoolVariable(const std::string& name) {
  return boolVariables.value(boolVariables.findOrAppend(name));
}

void ScenarioHandler::SetJsonVariable(const std::string& name, const boost::property_tree::ptree& value) {
  auto& entries = mJsonVariables->entries;
  entries.value(entries.findOrAppend(name)) = value;
}

boost::property_tree::ptree ScenarioHandler::GetJsonVariable(const std::string& name) {
  auto& entries = mJsonVariables->entries;
  return entries.value(entries.findOrAppend(name));
}

void ScenarioHandler::AddToStringList(const std::string& name, const std::string& value) {
  std::vector<std::string>& list = stringLists.value(stringLists.findOrAppend(name));
  if (std::find(list.begin(), list.end(), value) == list.end()) list.push_back(value);
}

std::vector<std::string> ScenarioHandler::GetStringList(const std::string& name) {
  return stringLists.value(stringLists.findOrAppend(name));
}

void ScenarioHandler::RemoveLocalVariable(const std::string& name) { eraseAllNamed(variables, name); }
void ScenarioHandler::RemoveLocalStringVariable(const std::string& name) { eraseAllNamed(stringVariables, name); }
void ScenarioHandler::RemoveLocalEntityList(const std::string& name) { eraseAllNamed(entityLists, name); }

}
