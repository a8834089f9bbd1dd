#pragma once
#include "game_plugin/scenario/messages/HandlerWatch.h"

#include "qsf/message/MessageProxy.h"

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace script {

class ScenarioHandler;

/// What has arrived since a script's last tick began, and what had arrived before: conditions read the latter.
template <class T> class TickBuffer {
public:
  void add(T value) { mPending.push_back(std::move(value)); }
  void advance() {
    mCurrent.swap(mPending);
    mPending.clear();
  }
  const std::vector<T>& current() const { return mCurrent; }

private:
  std::vector<T> mCurrent;
  std::vector<T> mPending;
};

/// Turns messages, which come at any time, into state that conditions read: each script sees in one tick, and in that
/// one only, what has arrived since its tick before. Every handler has rows of its own, so none takes a message from
/// another. Owned by MapScriptManager; lives from the start of a map's scripts to the game's end, so that a script of
/// the mode GAME_STARTUP, which starts before it, has no rows. At most one lives.
class ScenarioMessageReciever : HandlerWatch {
public:
  /// Somebody has used equipment.
  struct EquipmentRecord {
    std::string type; ///< "script::UseEquipment"
    std::uint64_t caller;
    std::uint64_t target;
    std::string message;
  };
  /// Something wants a trigger to run.
  struct ActivatorRecord {
    std::uint32_t hash;
    std::vector<std::uint64_t> ids;
  };

  ScenarioMessageReciever();
  virtual ~ScenarioMessageReciever();
  ScenarioMessageReciever(const ScenarioMessageReciever&) = delete;
  ScenarioMessageReciever& operator=(const ScenarioMessageReciever&) = delete;

  /// The living one, or null.
  static ScenarioMessageReciever* get();

  /// What arrives from now on is kept for that handler, too.
  void registerHandler(const ScenarioHandler* handler);
  /// Another handler may come to lie where one was.
  void forgetHandler(const ScenarioHandler* handler) override;
  /// The tick of that handler begins: what was pending is what its conditions read.
  void advanceHandler(const ScenarioHandler* handler);
  /// The same for the records of "Scenario::TriggerActivator" alone.
  void advanceActivators(const ScenarioHandler* handler);

  // What conditions read. Without rows a handler has heard nothing.

  const std::vector<std::uint64_t>& getSpawned(const ScenarioHandler* handler) const;
  bool getSelectionChanged(const ScenarioHandler* handler) const;
  /// Callers and targets of the records with that message, in the order of their arrival.
  std::pair<std::vector<std::uint64_t>, std::vector<std::uint64_t>>
  getEquipmentRecords(const std::string& message, const ScenarioHandler* handler) const;
  /// Ids of all records whose hash is that of the text, in the order of their arrival.
  std::vector<std::uint64_t> getActivatorIds(const ScenarioHandler* handler, const std::string& text) const;

  /// Whether the command was used since it was asked for the last time, by whatever script: all uses are taken.
  bool consumeCommand(const std::string& name);

  /// Has the key of that name followed in messages of "SCENARIO::HotkeyMessage".
  void registerHotkey(const std::string& name);
  /// As the last message said; false for a key that isn't followed. Conditions ask the keyboard instead.
  bool isHotkeyDown(const std::string& name) const;

private:
  struct Rows {
    TickBuffer<std::uint64_t> spawned;
    TickBuffer<std::shared_ptr<const EquipmentRecord>> equipment;
    TickBuffer<std::shared_ptr<const ActivatorRecord>> activators;
    bool selectionChanged = false;
    bool isSelectionChangePending = false;
  };
  Rows* find(const ScenarioHandler* handler);
  const Rows* find(const ScenarioHandler* handler) const;

  void onUseEquipment(const qsf::MessageParameters& parameters);
  void onCommandUsed(const qsf::MessageParameters& parameters);
  void onSpawnEntity(const qsf::MessageParameters& parameters);
  void onChangeSelection();
  static void onSpeakToPerson(const qsf::MessageParameters& parameters);
  void onTriggerActivator(const qsf::MessageParameters& parameters);
  void onHotkey(const qsf::MessageParameters& parameters);

  std::unordered_map<const ScenarioHandler*, Rows> mRows;
  std::set<std::uint32_t> mUsedCommands; ///< stays until somebody asks; hashes
  std::map<std::string, bool> mHotkeys;
  qsf::MessageProxy mEquipmentProxy;
  qsf::MessageProxy mCommandProxy;
  qsf::MessageProxy mSpawnProxy;
  qsf::MessageProxy mSelectionProxy;
  qsf::MessageProxy mSpeakProxy;
  qsf::MessageProxy mActivatorProxy;
  qsf::MessageProxy mHotkeyProxy;
};

}
