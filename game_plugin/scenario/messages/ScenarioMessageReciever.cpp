#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"

#include "game_plugin/scenario/language/TextConversion.h"
#include "game_plugin/scenario/messages/MessageNames.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

namespace script {

namespace {

ScenarioMessageReciever* theReciever = nullptr;

/// Ids with commas between them. A piece that isn't one, a blank beside it included, is left out.
std::vector<std::uint64_t> idsOf(const std::string& units) {
  std::vector<std::uint64_t> ids;
  for (std::size_t begin = 0; begin <= units.size();) {
    const std::size_t end = std::min(units.find(',', begin), units.size());
    if (std::uint64_t id = 0; textToId(units.substr(begin, end - begin), id)) ids.push_back(id);
    begin = end + 1;
  }
  return ids;
}

}

ScenarioMessageReciever::ScenarioMessageReciever() {
  theReciever = this;
  using Parameters = qsf::MessageParameters;
  mEquipmentProxy.registerAt(qsf::StringHash(messages::USE_EQUIPMENT),
                             [this](const Parameters& p) { onUseEquipment(p); });
  mCommandProxy.registerAt(qsf::StringHash(messages::COMMAND_USED), [this](const Parameters& p) { onCommandUsed(p); });
  mSpawnProxy.registerAt(em5::Messages::EM5_SPAWN_ENTITY, [this](const Parameters& p) { onSpawnEntity(p); });
  mSelectionProxy.registerAt(em5::Messages::EM5_CHANGE_SELECTION, [this](const Parameters&) { onChangeSelection(); });
  mSpeakProxy.registerAt(em5::Messages::EM5_ACTION_SPEAK_TO_PERSON, &ScenarioMessageReciever::onSpeakToPerson);
  mActivatorProxy.registerAt(qsf::StringHash(messages::TRIGGER_ACTIVATOR),
                             [this](const Parameters& p) { onTriggerActivator(p); });
  mHotkeyProxy.registerAt(qsf::StringHash(messages::HOTKEY), [this](const Parameters& p) { onHotkey(p); });
}

ScenarioMessageReciever::~ScenarioMessageReciever() {
  if (theReciever == this) theReciever = nullptr;
}

ScenarioMessageReciever* ScenarioMessageReciever::get() { return theReciever; }

void ScenarioMessageReciever::registerHandler(const ScenarioHandler* handler) { mRows.try_emplace(handler); }

void ScenarioMessageReciever::forgetHandler(const ScenarioHandler* handler) { mRows.erase(handler); }

ScenarioMessageReciever::Rows* ScenarioMessageReciever::find(const ScenarioHandler* handler) {
  const auto found = mRows.find(handler);
  return found == mRows.end() ? nullptr : &found->second;
}

const ScenarioMessageReciever::Rows* ScenarioMessageReciever::find(const ScenarioHandler* handler) const {
  const auto found = mRows.find(handler);
  return found == mRows.end() ? nullptr : &found->second;
}

void ScenarioMessageReciever::advanceHandler(const ScenarioHandler* handler) {
  Rows* rows = find(handler);
  if (!rows) return;
  rows->spawned.advance();
  rows->equipment.advance();
  rows->selectionChanged = std::exchange(rows->isSelectionChangePending, false);
  rows->activators.advance();
}

void ScenarioMessageReciever::advanceActivators(const ScenarioHandler* handler) {
  if (Rows* rows = find(handler)) rows->activators.advance();
}

const std::vector<std::uint64_t>& ScenarioMessageReciever::getSpawned(const ScenarioHandler* handler) const {
  static const std::vector<std::uint64_t> NOTHING;
  const Rows* rows = find(handler);
  return rows ? rows->spawned.current() : NOTHING;
}

bool ScenarioMessageReciever::getSelectionChanged(const ScenarioHandler* handler) const {
  const Rows* rows = find(handler);
  return rows && rows->selectionChanged;
}

std::pair<std::vector<std::uint64_t>, std::vector<std::uint64_t>>
ScenarioMessageReciever::getEquipmentRecords(const std::string& message, const ScenarioHandler* handler) const {
  std::pair<std::vector<std::uint64_t>, std::vector<std::uint64_t>> callersAndTargets;
  const Rows* rows = find(handler);
  if (!rows) return callersAndTargets;
  for (const auto& record : rows->equipment.current()) {
    if (record->message != message || record->type != messages::USE_EQUIPMENT) continue;
    callersAndTargets.first.push_back(record->caller);
    callersAndTargets.second.push_back(record->target);
  }
  return callersAndTargets;
}

std::vector<std::uint64_t> ScenarioMessageReciever::getActivatorIds(const ScenarioHandler* handler,
                                                                    const std::string& text) const {
  std::vector<std::uint64_t> ids;
  const Rows* rows = find(handler);
  if (!rows) return ids;
  const std::uint32_t hash = qsf::StringHash(text).getHash();
  for (const auto& record : rows->activators.current())
    if (record->hash == hash) ids.insert(ids.end(), record->ids.begin(), record->ids.end());
  return ids;
}

bool ScenarioMessageReciever::consumeCommand(const std::string& name) {
  return mUsedCommands.erase(qsf::StringHash(name).getHash()) != 0;
}

void ScenarioMessageReciever::registerHotkey(const std::string& name) { mHotkeys.try_emplace(name, false); }

bool ScenarioMessageReciever::isHotkeyDown(const std::string& name) const {
  const auto found = mHotkeys.find(name);
  return found != mHotkeys.end() && found->second;
}

void ScenarioMessageReciever::onUseEquipment(const qsf::MessageParameters& parameters) {
  EquipmentRecord record{messages::USE_EQUIPMENT, parameters.getFilter(1), parameters.getFilter(2), {}};
  parameters.getParameter("Message", record.message);
  const auto shared = std::make_shared<const EquipmentRecord>(std::move(record));
  for (auto& [handler, rows] : mRows)
    rows.equipment.add(shared);
}

void ScenarioMessageReciever::onCommandUsed(const qsf::MessageParameters& parameters) {
  mUsedCommands.insert(static_cast<std::uint32_t>(parameters.getFilter(1)));
}

void ScenarioMessageReciever::onSpawnEntity(const qsf::MessageParameters& parameters) {
  const std::uint64_t id = parameters.getFilter(1);
  for (auto& [handler, rows] : mRows)
    rows.spawned.add(id);
}

void ScenarioMessageReciever::onChangeSelection() {
  for (auto& [handler, rows] : mRows)
    rows.isSelectionChangePending = true;
}

/// Scripts hear the game's own action as if it were one of theirs.
void ScenarioMessageReciever::onSpeakToPerson(const qsf::MessageParameters& parameters) {
  std::uint64_t policeman = qsf::UNINITIALIZED_ID;
  std::uint64_t person = qsf::UNINITIALIZED_ID;
  parameters.getParameter("PolicemanId", policeman);
  parameters.getParameter("PersonId", person);
  qsf::MessageParameters message(qsf::MessageConfiguration(messages::USE_EQUIPMENT, policeman, person));
  message.setParameter("Message", std::string("SpeakToPerson1"));
  qsf::Qsf::instance()->getMessageSystem().emitMessage(message);
}

void ScenarioMessageReciever::onTriggerActivator(const qsf::MessageParameters& parameters) {
  std::string units;
  const auto hash = static_cast<std::uint32_t>(parameters.getFilter(1));
  parameters.getParameter("units", units);
  const auto shared = std::make_shared<const ActivatorRecord>(ActivatorRecord{hash, idsOf(units)});
  for (auto& [handler, rows] : mRows)
    rows.activators.add(shared);
}

void ScenarioMessageReciever::onHotkey(const qsf::MessageParameters& parameters) {
  std::string name;
  const bool pressed = parameters.getFilter(1) != 0;
  parameters.getParameter("hotkey", name);
  const auto found = mHotkeys.find(name);
  if (found != mHotkeys.end()) found->second = pressed;
}

}
