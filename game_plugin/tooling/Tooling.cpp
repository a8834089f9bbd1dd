#include "game_plugin/tooling/Tooling.h"

#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/stores/JsonStore.h"

#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

#include <boost/property_tree/ptree.hpp>

namespace script::tooling {

namespace {

/// Null for an index beyond the scripts.
const MapScriptEntry* findEntry(std::size_t script) {
  const MapScriptManager* manager = MapScriptManager::Get();
  if (!manager || script >= manager->GetScriptEntries().size()) return nullptr;
  return manager->GetScriptEntries()[script];
}

/// Null if the script doesn't run.
ScenarioHandler* findHandler(std::size_t script) {
  const MapScriptEntry* entry = findEntry(script);
  return entry ? entry->handler : nullptr;
}

/// A store that both scripts and the whole have: that of the script, or the global one. Null if there is none.
template <class T>
Store<T>* findStore(std::optional<std::size_t> script, Store<T> ScenarioHandler::*local,
                    Store<T> GlobalStores::*global) {
  if (script) {
    ScenarioHandler* handler = findHandler(*script);
    return handler ? &(handler->*local) : nullptr;
  }
  const MapScriptManager* manager = MapScriptManager::Get();
  return manager ? &(manager->GetGlobalStores().get()->*global) : nullptr;
}

template <class T> std::vector<std::string> namesOf(const Store<T>* store) {
  std::vector<std::string> names;
  for (std::size_t i = 0; store && i < store->size(); ++i)
    names.push_back(store->name(i));
  return names;
}

template <class T> const T* findValue(const Store<T>* store, const std::string& name) {
  const std::size_t index = store ? store->find(name) : Store<T>::NOT_FOUND;
  return index == Store<T>::NOT_FOUND ? nullptr : &store->value(index);
}

template <class T> std::optional<T> copyOf(const T* value) { return value ? std::optional<T>(*value) : std::nullopt; }

const Store<float>* variablesOf(std::optional<std::size_t> script) {
  return findStore(script, &ScenarioHandler::variables, &GlobalStores::variables);
}
const Store<std::string>* stringsOf(std::optional<std::size_t> script) {
  return findStore(script, &ScenarioHandler::stringVariables, &GlobalStores::stringVariables);
}
const Store<EntityList>* listsOf(std::optional<std::size_t> script) {
  return findStore(script, &ScenarioHandler::entityLists, &GlobalStores::entityLists);
}

TriggerView viewOf(const ScenarioTrigger& trigger) {
  TriggerView view;
  view.name = trigger.name;
  view.globalName = trigger.globalName;
  view.hash = trigger.globalNameHash;
  view.line = trigger.line;
  view.active = trigger.active;
  view.looped = trigger.looped;
  view.fulfilledConditions = trigger.fulfilledConditions;
  view.requiredConditions = trigger.requiredConditions;
  for (const DefaultCondition* condition : trigger.conditions)
    view.conditions.push_back({std::string(condition->name()), condition->expected, condition->line});
  for (const DefaultEffect* effect : trigger.effects)
    view.effects.push_back({std::string(effect->name()), true, effect->line});
  view.numberOfBlocks = static_cast<std::uint32_t>(trigger.conditionalBlocks.size());
  view.lastTimeActive = trigger.lastTimeActive;
  view.multiplayerMode = trigger.multiplayerMode;
  view.player = trigger.player;
  view.timesFired = trigger.timesFired;
  return view;
}

/// The tools' view of the living manager, whichever it is at the time of a call.
class ManagerTooling : public Tooling {
public:
  std::vector<ScriptView> getScripts() const override {
    std::vector<ScriptView> views;
    if (const MapScriptManager* manager = MapScriptManager::Get())
      for (const MapScriptEntry* entry : manager->GetScriptEntries())
        views.push_back({entry->key, entry->project, entry->path, std::string(toText(entry->mode)),
                         entry->handler != nullptr, entry->document->time, entry->document->triggers.size()});
    return views;
  }

  std::vector<TriggerView> getTriggers(std::size_t script) const override {
    std::vector<TriggerView> views;
    if (const MapScriptEntry* entry = findEntry(script))
      for (const ScenarioTrigger& trigger : entry->document->triggers)
        views.push_back(viewOf(trigger));
    return views;
  }

  std::vector<std::string> getNames(std::optional<std::size_t> script, StoreKind kind) const override {
    const ScenarioHandler* handler = script ? findHandler(*script) : nullptr;
    switch (kind) {
    case StoreKind::Variables:
      return namesOf(variablesOf(script));
    case StoreKind::Strings:
      return namesOf(stringsOf(script));
    case StoreKind::Lists:
      return namesOf(listsOf(script));
    case StoreKind::Bools:
      return namesOf(handler ? &handler->boolVariables : nullptr);
    case StoreKind::Jsons:
      return namesOf(handler ? &handler->GetJsonStore().entries : nullptr);
    case StoreKind::StringLists:
      return namesOf(handler ? &handler->stringLists : nullptr);
    }
    return {};
  }

  std::optional<float> getVariable(std::optional<std::size_t> script, const std::string& name) const override {
    return copyOf(findValue(variablesOf(script), name));
  }
  std::optional<std::string> getString(std::optional<std::size_t> script, const std::string& name) const override {
    return copyOf(findValue(stringsOf(script), name));
  }
  std::optional<std::vector<std::uint64_t>> getList(std::optional<std::size_t> script,
                                                    const std::string& name) const override {
    const EntityList* list = findValue(listsOf(script), name);
    if (!list) return std::nullopt;
    return std::vector<std::uint64_t>(list->ids().begin(), list->ids().end());
  }
  std::optional<bool> getBool(std::size_t script, const std::string& name) const override {
    const ScenarioHandler* handler = findHandler(script);
    return copyOf(findValue(handler ? &handler->boolVariables : nullptr, name));
  }
  std::optional<std::vector<std::string>> getStringList(std::size_t script, const std::string& name) const override {
    const ScenarioHandler* handler = findHandler(script);
    return copyOf(findValue(handler ? &handler->stringLists : nullptr, name));
  }
  std::optional<std::string> getJson(std::size_t script, const std::string& name,
                                     const std::string& path) const override {
    const ScenarioHandler* handler = findHandler(script);
    const auto* tree = findValue(handler ? &handler->GetJsonStore().entries : nullptr, name);
    if (!tree) return std::nullopt;
    const auto value = tree->get_optional<std::string>(path);
    return value ? std::optional<std::string>(*value) : std::nullopt;
  }

  bool setVariable(std::size_t script, const std::string& name, float value) override {
    ScenarioHandler* handler = findHandler(script);
    if (handler) handler->SetFloatVariable(name, value);
    return handler != nullptr;
  }
  bool setString(std::size_t script, const std::string& name, const std::string& value) override {
    ScenarioHandler* handler = findHandler(script);
    if (handler) handler->SetStringVariable(name, value);
    return handler != nullptr;
  }
  bool setBool(std::size_t script, const std::string& name, bool value) override {
    ScenarioHandler* handler = findHandler(script);
    if (handler) handler->SetBoolVariable(name, value);
    return handler != nullptr;
  }
  bool setList(std::size_t script, const std::string& name, const std::vector<std::uint64_t>& ids) override {
    ScenarioHandler* handler = findHandler(script);
    if (!handler) return false;
    Store<EntityList>& store = isGlobalName(name) ? handler->GetGlobalStores().entityLists : handler->entityLists;
    EntityList& list = store.value(store.findOrAppend(name)); // also an empty list exists then
    list.clear();
    for (const std::uint64_t id : ids)
      list.add(id);
    return true;
  }

  void reload() override {
    const bool hasGame = static_cast<bool>(qsf::UniqueInstance<em5::Game>());
    if (!hasGame && !qsf::UniqueInstance<em5::EmergencyGui>()) {
      if (const qsf::Qsf* host = qsf::Qsf::instance())
        host->getMessageSystem().emitMessage(qsf::StringHash("script::ForceHotReload_EditorOnly"));
      return;
    }
    MapScriptManager& manager = MapScriptManager::Replace(true);
    if (hasGame) manager.StartMapScripts();
  }
};

}

}

/// What tools ask the module for once they have loaded it.
extern "C" QSF_API script::tooling::Tooling* GetTidemarkTooling();

script::tooling::Tooling* GetTidemarkTooling() {
  static script::tooling::ManagerTooling tooling;
  return &tooling;
}
