#include "game_plugin/tooling/Tooling.h"

#include "game_plugin/component/EventTargetComponent.h"
#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/event/ScenarioEvent.h"
#include "game_plugin/multiplayer/Instructions.h"
#include "game_plugin/scenario/documentation/ReferenceFiles.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/lifecycle/MapScriptManager.h"
#include "game_plugin/scenario/lifecycle/ScriptFates.h"
#include "game_plugin/scenario/loading/ProgramCache.h"
#include "game_plugin/scenario/messages/MessageNames.h"
#include "game_plugin/scenario/program/BlankEntry.h"
#include "game_plugin/scenario/stores/JsonStore.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <boost/property_tree/ptree.hpp>

#include <algorithm>
#include <iterator>
#include <map>

namespace script::tooling {

namespace {

/// Null for an index beyond the scripts.
const MapScriptEntry* findEntry(std::size_t script) {
  const MapScriptManager* manager = MapScriptManager::get();
  if (!manager || script >= manager->getScriptEntries().size()) return nullptr;
  return manager->getScriptEntries()[script];
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
  const MapScriptManager* manager = MapScriptManager::get();
  return manager ? &(manager->getGlobalStores().get()->*global) : nullptr;
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
  const TriggerProgram& program = *trigger.program;
  TriggerView view;
  view.name = program.name;
  view.globalName = program.globalName;
  view.hash = program.globalNameHash;
  view.line = program.line;
  view.active = trigger.active;
  view.looped = trigger.looped;
  view.fulfilledConditions = trigger.fulfilledConditions;
  view.requiredConditions = program.requiredConditions;
  for (const DefaultCondition* condition : program.conditions)
    view.conditions.push_back({std::string(condition->name()), condition->expected, condition->line});
  for (const DefaultEffect* effect : program.effects)
    view.effects.push_back({std::string(effect->name()), true, effect->line});
  view.numberOfBlocks = static_cast<std::uint32_t>(program.conditionalBlocks.size());
  view.lastTimeActive = trigger.lastTimeActive;
  view.multiplayerMode = program.multiplayerMode;
  view.player = trigger.player();
  view.callers = trigger.callers();
  view.target = trigger.target();
  view.timesFired = trigger.timesFired;
  return view;
}

ScriptView viewOf(const MapScriptEntry& entry) {
  ScriptView view;
  view.key = entry.key;
  view.project = entry.project;
  view.path = entry.path;
  view.mode = toText(entry.mode);
  view.running = entry.handler != nullptr;
  view.state = view.running ? "running" : "stopped";
  const Program& program = *entry.document->program;
  if (program.hasFailed())
    view.state = "can't be used, line " + std::to_string(program.droppedLines().back().line) + ": " +
                 program.droppedLines().back().reason;
  view.time = entry.document->time;
  view.numberOfTriggers = entry.document->triggers.size();
  return view;
}

std::string_view nameOf(HintKind kind) {
  static constexpr std::string_view NAMES[] = {"word",   "operator", "conversion", "component", "property",
                                               "entity", "asset",    "name",       "link",      "network"};
  return NAMES[static_cast<std::size_t>(kind)];
}

/// The store that a name belongs to when it is set from outside; null if the script doesn't run.
template <class T>
Store<T>* storeToSet(std::optional<std::size_t> script, const std::string& name, Store<T> ScenarioHandler::*local,
                     Store<T> GlobalStores::*global) {
  return findStore(isGlobalName(name) ? std::nullopt : script, local, global);
}

template <class T> bool assign(Store<T>* store, const std::string& name, T value) {
  if (!store) return false;
  store->value(store->findOrAppend(name)) = std::move(value);
  if (hints::isOn()) hints::noteWritten(store, store->name(store->find(name)));
  return true;
}

/// `A` is the first of that unique id, `A#2` the second.
qsf::GuiDocument* findScriptDocument(const std::string& name) {
  if (!GuiDocuments::get()) return nullptr;
  std::string id = name;
  std::size_t number = 1;
  if (const std::size_t mark = name.rfind('#'); mark != std::string::npos)
    if (boost::conversion::try_lexical_convert(name.substr(mark + 1), number)) id = name.substr(0, mark);
  const std::vector<qsf::GuiDocument*> documents = GuiDocuments::get()->find(id);
  return number >= 1 && number <= documents.size() ? documents[number - 1] : nullptr;
}

/// The tools' view of the living manager, whichever it is at the time of a call.
/// The child of that key, or the element of that number; null if there is none.
const boost::property_tree::ptree* findChild(const boost::property_tree::ptree& tree, const std::string& key) {
  if (const auto found = tree.find(key); found != tree.not_found()) return &found->second;
  std::size_t index = 0;
  if (!boost::conversion::try_lexical_convert(key, index) || index >= tree.size()) return nullptr;
  const auto& element = *std::next(tree.begin(), static_cast<std::ptrdiff_t>(index));
  return element.first.empty() ? &element.second : nullptr; // elements have no key
}

/// The place in a script's JSON variable; null if there is none, or the script doesn't run.
const boost::property_tree::ptree* findJson(std::size_t script, const std::string& name, const std::string& path) {
  const ScenarioHandler* handler = findHandler(script);
  const auto* tree = findValue(handler ? &handler->getJsonStore().entries : nullptr, name);
  for (std::size_t begin = 0; tree && begin < path.size();) {
    const std::size_t end = std::min(path.find('.', begin), path.size());
    tree = findChild(*tree, path.substr(begin, end - begin));
    begin = end + 1;
  }
  return tree;
}

class ManagerTooling : public Tooling {
public:
  std::vector<CatalogueEntry> getCatalogue() const override { return describeCatalogue(); }

  std::vector<ReferenceFile> getReferenceFiles() const override {
    std::vector<ReferenceFile> files;
    for (documentation::ReferenceFile& file : documentation::makeReferenceFiles())
      files.push_back({std::string(file.name), std::move(file.text)});
    return files;
  }

  void switchReferenceFiles(bool on) override { documentation::wantReferenceFiles(on); }

  std::vector<ScriptView> getScripts() const override {
    std::vector<ScriptView> views;
    if (const MapScriptManager* manager = MapScriptManager::get())
      for (const MapScriptEntry* entry : manager->getScriptEntries())
        views.push_back(viewOf(*entry));
    return views;
  }

  std::vector<TriggerView> getTriggers(std::size_t script) const override {
    std::vector<TriggerView> views;
    if (const MapScriptEntry* entry = findEntry(script))
      for (const ScenarioTrigger& trigger : entry->document->triggers)
        views.push_back(viewOf(trigger));
    return views;
  }

  std::vector<FateView> getFates() const override {
    std::vector<FateView> views;
    for (const fates::Fate& fate : fates::all())
      views.push_back({fate.key, fate.project, fate.path, fate.mode, fate.what, fate.time, fate.count});
    return views;
  }

  std::vector<std::string> getUnreadableConfigurations() const override { return fates::unreadableFiles(); }

  std::vector<CommandBidView> getCommandBids() const override {
    std::vector<CommandBidView> views;
    if (const MapScriptManager* manager = MapScriptManager::get())
      for (const auto& row : manager->getScriptedCommands().rows())
        views.push_back({row->commandName, row->mouseIcon, row->priority, row->armed});
    return views;
  }

  std::vector<InstructionView> getInstructions() const override {
    std::map<std::uint32_t, InstructionView> views;
    for (const auto& [hash, count] : multiplayer::Instructions::sent())
      views[hash].sent = count;
    for (const auto& [hash, count] : multiplayer::Instructions::lost())
      views[hash].lost = count;
    std::vector<InstructionView> all;
    for (auto& [hash, view] : views) {
      view.hash = hash;
      all.push_back(view);
    }
    return all;
  }

  void blockExtinguishing(std::uint64_t entityId) override {
    if (MapScriptManager* manager = MapScriptManager::get()) manager->getBlockedEntityIds().push_back(entityId);
  }

  std::vector<DroppedLineView> getDroppedLines() const override {
    std::vector<DroppedLineView> views;
    if (const MapScriptManager* manager = MapScriptManager::get())
      for (const auto& [path, lines] : manager->programs().droppedLines())
        for (const DroppedLine& line : lines)
          views.push_back({path, line.line, line.column, line.reason});
    return views;
  }

  qsf::GuiDocument* findDocument(const std::string& name) const override {
    qsf::GuiDocument* own = NamedDocument::find(name);
    return own ? own : findScriptDocument(name);
  }

  std::optional<Origin> getOrigin() const override {
    const ExecutionPoint& point = executionPoint;
    if (!point.source || point.line == 0) return std::nullopt;
    return Origin{point.source->path(), point.line, std::string(point.source->triggerAt(point.line))};
  }

  void switchHints(bool on) override { hints::switchTo(on); }

  std::vector<HintView> getHints() const override {
    std::vector<HintView> views;
    for (const Hint& hint : hints::all())
      views.push_back(
          {{hint.path, hint.line, hint.trigger}, std::string(nameOf(hint.kind)), hint.text, hint.nearest, hint.count});
    return views;
  }

  std::vector<std::string> getNames(std::optional<std::size_t> script, StoreKind kind) const override {
    const ScenarioHandler* handler = script ? findHandler(*script) : nullptr;
    switch (kind) {
    case StoreKind::VARIABLES:
      return namesOf(variablesOf(script));
    case StoreKind::STRINGS:
      return namesOf(stringsOf(script));
    case StoreKind::LISTS:
      return namesOf(listsOf(script));
    case StoreKind::BOOLS:
      return namesOf(handler ? &handler->boolVariables : nullptr);
    case StoreKind::JSONS:
      return namesOf(handler ? &handler->getJsonStore().entries : nullptr);
    case StoreKind::STRING_LISTS:
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
    const boost::property_tree::ptree* value = findJson(script, name, path);
    return value ? std::optional<std::string>(value->data()) : std::nullopt;
  }
  std::optional<std::size_t> getJsonSize(std::size_t script, const std::string& name,
                                         const std::string& path) const override {
    const boost::property_tree::ptree* value = findJson(script, name, path);
    return value ? std::optional<std::size_t>(value->size()) : std::nullopt;
  }

  bool setVariable(std::optional<std::size_t> script, const std::string& name, float value) override {
    return assign(storeToSet(script, name, &ScenarioHandler::variables, &GlobalStores::variables), name, value);
  }
  bool setString(std::optional<std::size_t> script, const std::string& name, const std::string& value) override {
    return assign(storeToSet(script, name, &ScenarioHandler::stringVariables, &GlobalStores::stringVariables), name,
                  value);
  }
  bool setBool(std::size_t script, const std::string& name, bool value) override {
    ScenarioHandler* handler = findHandler(script);
    if (handler) handler->SetBoolVariable(name, value);
    return handler != nullptr;
  }
  bool setList(std::optional<std::size_t> script, const std::string& name,
               const std::vector<std::uint64_t>& ids) override {
    EntityList list;
    for (const std::uint64_t id : ids)
      list.add(id);
    return assign(storeToSet(script, name, &ScenarioHandler::entityLists, &GlobalStores::entityLists), name,
                  std::move(list)); // also an empty list exists then
  }

  void setPlayerLogFolder(const std::string& folder) override { MP_LOG_COMPONENT::setFolder(folder); }

  void blankEntry(const std::string& name, bool answer) override { BlankEntry::choose(name, answer); }

  std::vector<ScenarioEventView> getScenarioEvents() const override {
    std::vector<ScenarioEventView> views;
    for (const ScenarioEvent* event : getCurrentScenarioEvents())
      views.push_back({event->uniqueId, event->getId(), event->getEventType(), event->allowedToFinish});
    return views;
  }

  std::vector<std::string> getEventTargets(std::uint64_t entityId) const override {
    const qsf::Entity* entity = findEntity(entityId);
    const auto* target = entity ? entity->getComponent<EventTargetComponent>() : nullptr;
    return target ? target->getObjectiveIds() : std::vector<std::string>();
  }

  void reload() override {
    if (!qsf::UniqueInstance<em5::Game>() && !qsf::UniqueInstance<em5::EmergencyGui>()) {
      if (const qsf::Qsf* host = qsf::Qsf::instance())
        host->getMessageSystem().emitMessage(qsf::StringHash(messages::RELOAD_IN_EDITOR));
      return;
    }
    MapScriptManager::reloadInGame();
  }
};

}

}

/// What tools ask the module for once they have loaded it.
extern "C" QSF_API script::tooling::Tooling* getTidemarkTooling();

script::tooling::Tooling* getTidemarkTooling() {
  static script::tooling::ManagerTooling tooling;
  return &tooling;
}
