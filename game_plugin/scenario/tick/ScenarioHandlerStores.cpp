#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/stores/JsonStore.h"
#include "game_plugin/scenario/stores/RemainingIds.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/UnitTypes.h"

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

namespace {

/// What hints call a kind of store.
template <class Value>
constexpr std::string_view KIND = std::is_same_v<Value, float>         ? "variable"
                                  : std::is_same_v<Value, std::string> ? "string variable"
                                                                       : "list";

template <class Value> std::size_t writeByName(Store<Value>& store, const std::string& name) {
  const std::size_t found = store.findOrAppend(name);
  if (hints::isOn()) hints::noteWritten(&store, store.name(found));
  return found;
}

template <class Value> std::size_t readByName(Store<Value>& store, const std::string& name) {
  const std::size_t found = store.findOrAppend(name);
  if (hints::isOn()) hints::noteRead(&store, KIND<Value>, store.name(found));
  return found;
}

}

/// Index of the name's entry, appended if it is missing. Costs no search while the store has the epoch of the last use.
/// With hints on, a name that nobody has written yet is searched each time, so that each read of it is told.
template <class Value>
std::size_t ScenarioHandler::locate(const ArgumentText& text, std::string_view name, Store<Value>& store,
                                    Access access) {
  Place& place = mPlaces[text.slot];
  if (place.epoch == store.epoch()) return place.index;
  const std::size_t found = store.findOrAppend(name);
  if (hints::isOn() && access == Access::READ && hints::noteRead(&store, KIND<Value>, store.name(found))) return found;
  if (hints::isOn() && access == Access::WRITE) hints::noteWritten(&store, store.name(found));
  place = {store.epoch(), static_cast<std::uint32_t>(found)};
  return found;
}

float ScenarioHandler::searchFloat(const ArgumentText& text) {
  Store<float>& store = variablesOf(text.isGlobal);
  return store.value(locate(text, text.text, store, Access::READ));
}

float ScenarioHandler::ResolveFloat(const std::string& text) {
  float number = 0;
  if (textToFloat(text, number)) return number;
  Store<float>& store = variablesOf(isGlobalName(text));
  return store.value(readByName(store, text));
}

const std::string& ScenarioHandler::ResolveString(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (!info.isVariableReference) return info.text;
  Store<std::string>& store = stringVariablesOf(info.isReferenceGlobal);
  return store.value(locate(info, info.referencedName(), store, Access::READ));
}

std::string ScenarioHandler::ResolveString(const std::string& text) {
  if (text.find("svar(") == std::string::npos) return text;
  const std::string name = text.substr(5); // whatever stood before "svar("; other places give a senseless name
  Store<std::string>& store = stringVariablesOf(isGlobalName(name));
  return store.value(readByName(store, name));
}

EntityIds ScenarioHandler::ResolveEntityList(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (info.ids) return EntityIds(*info.ids);
  Store<EntityList>& store = entityListsOf(info.isGlobal);
  return EntityIds(store.value(locate(info, info.text, store, Access::READ)).ids());
}

EntityIds ScenarioHandler::ResolveEntityList(const std::string& text) {
  EntityIds ids;
  if (textToIds(text, ids.vector())) return ids;
  Store<EntityList>& store = entityListsOf(isGlobalName(text));
  return EntityIds(store.value(readByName(store, text)).ids());
}

std::size_t ScenarioHandler::getEntityListSize(const Argument& argument) {
  const ArgumentText& info = argument.info();
  if (info.ids) return info.ids->size();
  Store<EntityList>& store = entityListsOf(info.isGlobal);
  return store.value(locate(info, info.text, store, Access::READ)).size();
}

bool ScenarioHandler::isInEntityList(const Argument& argument, std::uint64_t id) {
  const ArgumentText& info = argument.info();
  if (info.ids) return std::find(info.ids->begin(), info.ids->end(), id) != info.ids->end();
  Store<EntityList>& store = entityListsOf(info.isGlobal);
  return store.value(locate(info, info.text, store, Access::READ)).contains(id);
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

void ScenarioHandler::searchAndSetFloat(const ArgumentText& name, float value) {
  // A name that reads as a number is stored all the same; no use of it will ever see the entry.
  Store<float>& store = variablesOf(name.isGlobal);
  store.value(locate(name, name.text, store, Access::WRITE)) = value;
}

void ScenarioHandler::SetFloatVariable(const std::string& name, float value) {
  Store<float>& store = variablesOf(isGlobalName(name));
  store.value(writeByName(store, name)) = value;
}

void ScenarioHandler::SetStringVariable(const std::string& name, const std::string& value) {
  Store<std::string>& store = stringVariablesOf(isGlobalName(name));
  store.value(writeByName(store, name)) = value;
}

void ScenarioHandler::AddToEntityList(const Argument& name, std::uint64_t id) {
  Store<EntityList>& store = entityListsOf(name.info().isGlobal);
  store.value(locate(name.info(), name.text(), store, Access::WRITE)).add(id);
}

void ScenarioHandler::AddToEntityList(const std::string& name, std::uint64_t id) {
  Store<EntityList>& store = entityListsOf(isGlobalName(name));
  store.value(writeByName(store, name)).add(id);
}

void ScenarioHandler::RemoveFromEntityList(const std::string& name, std::uint64_t id) {
  Store<EntityList>& store = entityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (index != store.NOT_FOUND) store.value(index).remove(id);
}

void ScenarioHandler::RemoveFromEntityList(const std::string& name, std::span<const std::uint64_t> sortedIds) {
  Store<EntityList>& store = entityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (index != store.NOT_FOUND) store.value(index).removeAll(sortedIds);
}

void ScenarioHandler::ClearEntityList(const Argument& name, bool removeList) {
  Store<EntityList>& store = entityListsOf(name.info().isGlobal);
  const Place& place = mPlaces[name.info().slot];
  if (!removeList && place.epoch == store.epoch())
    store.value(place.index).clear();
  else
    ClearEntityList(name.text(), removeList);
}

void ScenarioHandler::ClearEntityList(const std::string& name, bool removeList) {
  Store<EntityList>& store = entityListsOf(isGlobalName(name));
  const std::size_t index = store.find(name);
  if (!removeList) {
    if (index != store.NOT_FOUND) store.value(index).clear();
    if (hints::isOn()) hints::noteWritten(&store, store.spell(name)); // a list that is emptied is meant to be there
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
  jsonVariable(name) = value;
}

boost::property_tree::ptree ScenarioHandler::GetJsonVariable(const std::string& name) { return jsonVariable(name); }

boost::property_tree::ptree& ScenarioHandler::jsonVariable(const std::string& name) {
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

void ScenarioHandler::removeLocalVariable(const std::string& name) { eraseAllNamed(variables, name); }
void ScenarioHandler::removeLocalStringVariable(const std::string& name) { eraseAllNamed(stringVariables, name); }
void ScenarioHandler::removeLocalEntityList(const std::string& name) { eraseAllNamed(entityLists, name); }

}
