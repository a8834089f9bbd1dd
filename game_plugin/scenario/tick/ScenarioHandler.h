#pragma once
#include "game_plugin/scenario/program/Argument.h"
#include "game_plugin/scenario/program/RunState.h"
#include "game_plugin/scenario/stores/EntityList.h"
#include "game_plugin/scenario/stores/Store.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "game_plugin/scenario/tick/ScriptDocument.h"

#include "qsf/job/JobProxy.h"

#include <boost/property_tree/ptree_fwd.hpp>

#include <bit>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace script {

/// The stores that all scripts share. Owned by MapScriptManager; handlers hold on to them, so that a script which is
/// being stopped with its manager can end its effect.
struct GlobalStores {
  Store<float> variables{StoreMarks::ONE};
  Store<std::string> stringVariables{StoreMarks::ONE};
  Store<EntityList> entityLists{StoreMarks::ONE};

  ~GlobalStores();
};

class ScenarioHandler;
struct JsonStore;

/// Kinds of job that a handler can be started on.
enum class StartKind : std::uint32_t { REALTIME = 0, SIMULATION = 1, ANIMATION = 2 };

/// All scripts that there are, as handlers see them. MapScriptManager is the one that lives.
class ScriptDirectory {
public:
  /// First trigger of that hash over all scripts, and its script's handler, null if that doesn't run.
  virtual std::pair<ScenarioHandler*, const ScenarioTrigger*> findTrigger(std::uint32_t hash) const = 0;

protected:
  ~ScriptDirectory() = default;
};

/// Runs one script: a host job that advances the script's clock and walks its triggers, and the home of its local
/// stores. Made and stopped by MapScriptManager. Shares its document with the script's entry.
class ScenarioHandler {
public:
  explicit ScenarioHandler(std::shared_ptr<GlobalStores> globalStores);
  virtual ~ScenarioHandler();
  ScenarioHandler(const ScenarioHandler&) = delete;
  ScenarioHandler& operator=(const ScenarioHandler&) = delete;

  /// Stops the handler and frees it as soon as none of its effects is running. Null is allowed.
  static void retire(ScenarioHandler* handler);

  void SetDocument(std::shared_ptr<ScriptDocument> document);
  ScriptDocument* getDocument() const { return mDocument.get(); }
  const ScenarioConditions& getConditions() const { return mConditions; }
  const ScenarioEffects& getEffects() const { return mEffects; }

  /// Resets the running fields of the triggers and registers the job. The stores stay.
  void Start(StartKind kind);
  /// One tick.
  void Update(const qsf::JobArguments& arguments);
  /// Runs the trigger's effects now, on another machine's behalf: nobody asks for conditions, the trigger's clock and
  /// switches stay, and it doesn't count as a firing. Faults cost what is left of the effects.
  void runEffectsOf(const ScenarioTrigger& trigger);
  /// Stopped by retire: no further effect runs.
  bool isStopped() const { return mStopped; }

  /// Switches a trigger of this script. An empty name does nothing; a name that isn't found is logged. Switching on an
  /// inactive trigger restarts its timers.
  void SetTriggerActive(const std::string& localName, bool value);
  void SetTriggerActive(std::uint32_t hash, bool value);
  /// Hash of the first trigger of that name, the uninitialised hash if there is none.
  std::uint32_t GetTriggerHash(const std::string& localName) const;
  /// Local name of that hash, or empty.
  std::string GetTriggerName(std::uint32_t hash) const;

  /// Where triggers of other scripts are looked for; null for nowhere.
  static void setDirectory(const ScriptDirectory* directory);
  /// First trigger of that hash over all scripts: its handler, null if the script doesn't run or there is no such
  /// trigger, and the trigger, null if there is none.
  static std::pair<ScenarioHandler*, const ScenarioTrigger*> FindTriggerGlobally(std::uint32_t hash);
  /// Switches a trigger of any script on. The value is dropped on the way: scripts rely on a global activation that can
  /// only switch on. Returns whether it was found in a running script.
  static bool SetGlobalTriggerActiv(std::uint32_t hash, bool value);
  static bool SetGlobalTriggerActiv(const std::string& globalName, bool value);
  void PrintTriggerInfo(std::uint32_t hash) const;

  // Resolution: what a parameter means now. Reading a missing name appends it to its store, empty.

  /// A number literal, or a variable.
  float ResolveFloat(const Argument& argument) {
    const ArgumentText& text = argument.info();
    if (text.isNumber) return text.number;
    const Place& place = mPlaces[text.slot];
    return place.epoch == variables.epoch() ? variables.value(place.index) : searchFloat(text);
  }
  float ResolveFloat(const std::string& text);
  /// The text itself, or the string variable of `svar(name`. The reference holds until that variable is erased or
  /// assigned.
  const std::string& ResolveString(const Argument& argument);
  std::string ResolveString(const std::string& text);
  /// Ids separated by blanks, or a list; a private copy.
  EntityIds ResolveEntityList(const Argument& argument);
  EntityIds ResolveEntityList(const std::string& text);
  /// Three numbers or variables, separated by blanks. On another count: a message, false, and the outputs stay.
  bool SplitVecInXYZ(const Argument& argument, float& x, float& y, float& z);
  bool SplitVecInXYZ(const std::string& text, float& x, float& y, float& z);

  void SetFloatVariable(const Argument& name, float value) {
    const Place& place = mPlaces[name.info().slot];
    if (place.epoch == variables.epoch())
      variables.value(place.index) = value;
    else
      searchAndSetFloat(name.info(), value);
  }
  void SetFloatVariable(const std::string& name, float value);
  void SetStringVariable(const std::string& name, const std::string& value);

  void AddToEntityList(const Argument& name, std::uint64_t id);
  void AddToEntityList(const std::string& name, std::uint64_t id);
  /// Number of ids that ResolveEntityList gives, without the copy; creates a missing list as it does.
  std::size_t getEntityListSize(const Argument& argument);
  /// Whether ResolveEntityList gives that id, without the copy; creates a missing list as it does.
  bool isInEntityList(const Argument& argument, std::uint64_t id);
  void RemoveFromEntityList(const std::string& name, std::uint64_t id);
  /// Removes many ids, in ascending order, at the cost of one walk.
  void RemoveFromEntityList(const std::string& name, std::span<const std::uint64_t> sortedIds);
  void ClearEntityList(const Argument& name, bool removeList = false);
  void ClearEntityList(const std::string& name, bool removeList = false);
  /// Adds `count` random entities of a unit type (see CheckUnitType) within range of the centre, or of the whole map if
  /// there is no such centre. Ends when the candidates run out.
  void AddToEntityListByTypeInArea(const std::string& name, const std::string& unitType, std::uint32_t count,
                                   std::uint64_t centerId, float range);

  void SetBoolVariable(const std::string& name, bool value);
  bool GetBoolVariable(const std::string& name);
  void SetJsonVariable(const std::string& name, const boost::property_tree::ptree& value);
  boost::property_tree::ptree GetJsonVariable(const std::string& name);
  /// The JSON variable itself, to be read or changed without a copy; a missing one is made. Good as long as the
  /// handler.
  boost::property_tree::ptree& jsonVariable(const std::string& name);
  void AddToStringList(const std::string& name, const std::string& value);
  std::vector<std::string> GetStringList(const std::string& name);

  // The stores themselves, for entries that move or print them, and for tools.

  Store<float> variables;
  Store<std::string> stringVariables;
  Store<EntityList> entityLists;
  Store<bool> boolVariables;
  Store<std::vector<std::string>> stringLists;
  JsonStore& getJsonStore() const { return *mJsonVariables; }
  GlobalStores& getGlobalStores() const { return *mGlobal; }
  /// Removes every local entry of that name.
  void removeLocalVariable(const std::string& name);
  void removeLocalStringVariable(const std::string& name);
  void removeLocalEntityList(const std::string& name);

  /// What a record remembers in this run of its script.
  template <class T> T& stateOf(const RunState<T>& state) {
    return reinterpret_cast<T&>(mDocument->states[state.cell()].bytes);
  }

  /// The global mark `§` as this script's file writes it.
  std::string globalMark() const;

private:
  class RunningScope;

  /// Where a store held a name last; counts as long as the store has that epoch.
  struct Place {
    std::uint32_t epoch = 0;
    std::uint32_t index = 0;
  };
  enum class Access : unsigned char { READ, WRITE };

  void walkTriggers();
  void advanceMessages() const;
  bool holds(const ScenarioTrigger& trigger, std::uint32_t& fulfilled) const;
  /// Returns whether the trigger fired.
  bool tick(ScenarioTrigger& trigger);
  void tickOnClient(ScenarioTrigger& trigger);
  void fire(ScenarioTrigger& trigger);
  void fireOnClient(ScenarioTrigger& trigger, const std::vector<std::uint64_t>& callers, std::uint64_t target);
  float searchFloat(const ArgumentText& text);
  void searchAndSetFloat(const ArgumentText& name, float value);
  template <class Value>
  std::size_t locate(const ArgumentText& text, std::string_view name, Store<Value>& store, Access access);

  Store<float>& variablesOf(bool global) { return global ? mGlobal->variables : variables; }
  Store<std::string>& stringVariablesOf(bool global) { return global ? mGlobal->stringVariables : stringVariables; }
  Store<EntityList>& entityListsOf(bool global) { return global ? mGlobal->entityLists : entityLists; }

  std::shared_ptr<GlobalStores> mGlobal;
  std::unique_ptr<JsonStore> mJsonVariables;
  std::shared_ptr<ScriptDocument> mDocument;
  std::vector<Place> mPlaces; ///< one for each text of the program; the first is the empty text's
  ScenarioConditions mConditions;
  ScenarioEffects mEffects;
  bool mStopped = false;
  qsf::JobProxy mUpdateJobProxy;
};

}
