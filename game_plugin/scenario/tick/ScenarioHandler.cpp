#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/messages/HandlerWatch.h"
#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"
#include "game_plugin/scenario/stores/JsonStore.h"
#include "game_plugin/scenario/tick/FaultyLine.h"
#include "game_plugin/scenario/tick/TickNumber.h"
#include "game_plugin/scenario/world/LocalPlayer.h"

#include "em5/base/Jobs.h"
#include "em5/game/Game.h"
#include "em5/gui/EmergencyGui.h"
#include "qsf/log/FaultCounter.h"

#include <boost/bind/bind.hpp>

namespace script {

namespace {

/// Number of Update calls on the stack, of any handler, and the handlers that wait for it to become zero.
int runningUpdates = 0;
std::vector<ScenarioHandler*> retiredHandlers;

std::uint64_t tickNumber = 0;

const ScriptDirectory* directory = nullptr;

void freeRetiredHandlers() {
  std::vector<ScenarioHandler*> handlers;
  handlers.swap(retiredHandlers);
  for (ScenarioHandler* handler : handlers)
    delete handler;
}

qsf::StringHash jobManagerOf(StartKind kind) {
  switch (kind) {
  case StartKind::SIMULATION:
    return em5::Jobs::SIMULATION_LOGIC;
  case StartKind::ANIMATION:
    return em5::Jobs::ANIMATION_VEHICLE;
  case StartKind::REALTIME:
    break;
  }
  return em5::Jobs::REALTIME_GUI_DEBUG;
}

}

/// Keeps retired handlers alive while a tick runs: an effect may stop the script that it belongs to.
class ScenarioHandler::RunningScope {
public:
  explicit RunningScope(const ScriptDocument& document) : mExecution(document.program.get()) { ++runningUpdates; }
  ~RunningScope() {
    if (--runningUpdates == 0 && !retiredHandlers.empty()) freeRetiredHandlers();
  }
  RunningScope(const RunningScope&) = delete;
  RunningScope& operator=(const RunningScope&) = delete;

private:
  ExecutionScope mExecution;
};

GlobalStores::~GlobalStores() {
  if (!hints::isOn()) return;
  hints::forgetStore(&variables);
  hints::forgetStore(&stringVariables);
  hints::forgetStore(&entityLists);
}

ScenarioHandler::ScenarioHandler(std::shared_ptr<GlobalStores> globalStores)
    : mGlobal(std::move(globalStores)), mJsonVariables(std::make_unique<JsonStore>()), mPlaces(1), mConditions(this),
      mEffects(this) {}

ScenarioHandler::~ScenarioHandler() {
  HandlerWatch::tellAll(this);
  if (!hints::isOn()) return;
  hints::forgetStore(&variables);
  hints::forgetStore(&stringVariables);
  hints::forgetStore(&entityLists);
}

void ScenarioHandler::SetDocument(std::shared_ptr<ScriptDocument> document) {
  mDocument = std::move(document);
  mPlaces.assign(mDocument ? mDocument->program->numberOfSlots() : 1, Place());
}

void ScenarioHandler::retire(ScenarioHandler* handler) {
  if (!handler) return;
  handler->mStopped = true;
  HandlerWatch::tellAll(handler);
  handler->mUpdateJobProxy.unregister();
  retiredHandlers.push_back(handler);
  if (runningUpdates == 0) freeRetiredHandlers();
}

void ScenarioHandler::Start(StartKind kind) {
  if (!mDocument) {
    logInfo("ScenarioHandler: Scriptpointer is not valid");
    return;
  }
  mDocument->time = qsf::Time::ZERO;
  for (ScenarioTrigger& trigger : mDocument->triggers) {
    trigger.active = trigger.program->initialActive;
    trigger.looped = trigger.program->initialLooped;
    trigger.lastTimeActive = qsf::Time::ZERO;
  }
  if (ScenarioMessageReciever* reciever = ScenarioMessageReciever::get()) reciever->registerHandler(this);
  mUpdateJobProxy.registerAt(jobManagerOf(kind), boost::bind(&ScenarioHandler::Update, this, boost::placeholders::_1),
                             qsf::jobs::JobConfiguration(2));
}

/// Asks the processor for what the next triggers need, step by step, since one leads to the other: a large script
/// doesn't fit into the near caches, and a tick is mostly waiting for memory.
[[gnu::always_inline]] static inline void fetchAhead(const ScriptDocument& document, std::size_t index) {
  constexpr std::size_t PROGRAM = 12;
  constexpr std::size_t LIST = 8;
  constexpr std::size_t RECORD = 4;
  const std::vector<ScenarioTrigger>& triggers = document.triggers;
  if (index + PROGRAM >= triggers.size()) return;
  __builtin_prefetch(triggers[index + PROGRAM].program);
  __builtin_prefetch(triggers[index + LIST].program->conditions.begin());
  if (const Conditions& conditions = triggers[index + RECORD].program->conditions; !conditions.empty())
    __builtin_prefetch(conditions[0]);
}

std::uint64_t runningTick() { return tickNumber; }

void ScenarioHandler::Update(const qsf::JobArguments& arguments) {
  if (!mDocument) {
    mUpdateJobProxy.unregister();
    logInfo("There is no loaded script");
    return;
  }
  const RunningScope scope(*mDocument);
  ++tickNumber;
  advanceMessages();
  mDocument->time += arguments.getTimePassed();
  // What leaves an entry costs the rest of this script's tick and one line of the log; other scripts go on.
  qsf::callGuarded([this] { walkTriggers(); },
                   [this] { return describeFaultyLine(*mDocument->program, executionPoint.line); });
}

void ScenarioHandler::runEffectsOf(const ScenarioTrigger& trigger) {
  if (!mDocument || mStopped) return;
  const RunningScope scope(*mDocument);
  const std::shared_ptr<ScriptDocument> document = mDocument; // an effect may stop the script
  qsf::callGuarded([&] { mEffects.run(trigger.program->effects, trigger.globalNameHash()); },
                   [&] { return describeFaultyLine(*document->program, executionPoint.line); });
}

void ScenarioHandler::walkTriggers() {
  bool isClient = isLocalPlayerClient();
  for (std::size_t i = 0; i < mDocument->triggers.size() && !mStopped; ++i) {
    ScenarioTrigger& trigger = mDocument->triggers[i];
    fetchAhead(*mDocument, i);
    if (!trigger.active) continue;
    if (isClient && trigger.program->multiplayerMode != 2)
      tickOnClient(trigger);
    else if (tick(trigger))
      isClient = isLocalPlayerClient(); // effects may change whose machine this is
  }
}

/// What has arrived since the last tick is what the conditions of this one read. In the editor only triggers that are
/// to be activated are heard of.
void ScenarioHandler::advanceMessages() const {
  ScenarioMessageReciever* reciever = ScenarioMessageReciever::get();
  if (!reciever) return;
  if (qsf::UniqueInstance<em5::Game>())
    reciever->advanceHandler(this);
  else if (!qsf::UniqueInstance<em5::EmergencyGui>())
    reciever->advanceActivators(this);
}

/// Reads the trigger as it stands when its turn comes. Conditions can't change what is read here, so no copy is needed.
bool ScenarioHandler::holds(const ScenarioTrigger& trigger, std::uint32_t& fulfilled) const {
  return mConditions.evaluate(mDocument->time - trigger.lastTimeActive, trigger.program->conditions,
                              static_cast<std::uint32_t>(trigger.program->requiredConditions), fulfilled, &trigger);
}

bool ScenarioHandler::tick(ScenarioTrigger& trigger) {
  std::uint32_t fulfilled = 0;
  const bool fires = holds(trigger, fulfilled);
  if (fires) fire(trigger);
  trigger.fulfilledConditions = fulfilled;
  return fires;
}

void ScenarioHandler::tickOnClient(ScenarioTrigger& trigger) {
  if (trigger.program->multiplayerMode == 0) return; // the host runs it
  // What is sent along is what the trigger held when its turn came.
  const std::vector<std::uint64_t> callers = trigger.callers();
  const std::uint64_t target = trigger.target();
  std::uint32_t fulfilled = 0;
  if (holds(trigger, fulfilled)) fireOnClient(trigger, callers, target);
  trigger.fulfilledConditions = fulfilled;
}

void ScenarioHandler::fire(ScenarioTrigger& trigger) {
  if (trigger.call && trigger.program->multiplayerMode == 1 && hasLocalPlayer()) trigger.call->player = 0;
  trigger.lastTimeActive = mDocument->time;
  if (!trigger.looped) trigger.active = false; // before the effects, so that one of them can switch it on again
  ++trigger.timesFired;
  mEffects.run(trigger.program->effects, trigger.globalNameHash());
}

void ScenarioHandler::fireOnClient(ScenarioTrigger& trigger, const std::vector<std::uint64_t>& callers,
                                   std::uint64_t target) {
  trigger.lastTimeActive = mDocument->time;
  if (!trigger.looped) trigger.active = false; // it counts as fired where its effects run
  if (!sendTriggerToHost(trigger.globalNameHash(), callers, target)) logInfo("Cant send Instructions (GUISYNC)");
}

void ScenarioHandler::SetTriggerActive(const std::string& localName, bool value) {
  if (localName.empty()) return;
  ScenarioTrigger* trigger = mDocument ? mDocument->findTrigger(localName) : nullptr;
  if (!trigger) {
    logInfo("Activate Trigger Effect was not able to find the trigger" + localName);
    return;
  }
  if (!trigger->active) trigger->lastTimeActive = mDocument->time;
  trigger->active = value;
}

void ScenarioHandler::SetTriggerActive(std::uint32_t hash, bool value) {
  ScenarioTrigger* trigger = mDocument ? mDocument->findTrigger(hash) : nullptr;
  if (!trigger) {
    logInfo("Activate Trigger Effect was not able to find the trigger" + std::to_string(hash));
    return;
  }
  if (!trigger->active) trigger->lastTimeActive = mDocument->time;
  trigger->active = value;
}

std::uint32_t ScenarioHandler::GetTriggerHash(const std::string& localName) const {
  logInfo("Triggername we search for: " + localName);
  if (const ScenarioTrigger* trigger = mDocument ? mDocument->findTrigger(localName) : nullptr)
    return trigger->globalNameHash();
  logInfo("Cant find trigger");
  return qsf::UNINITIALIZED_STRING_HASH;
}

std::string ScenarioHandler::GetTriggerName(std::uint32_t hash) const {
  const ScenarioTrigger* trigger = mDocument ? mDocument->findTrigger(hash) : nullptr;
  return trigger ? std::string(trigger->name()) : std::string();
}

void ScenarioHandler::setDirectory(const ScriptDirectory* all) { directory = all; }

std::pair<ScenarioHandler*, const ScenarioTrigger*> ScenarioHandler::FindTriggerGlobally(std::uint32_t hash) {
  if (directory) return directory->findTrigger(hash);
  return {nullptr, nullptr};
}

bool ScenarioHandler::SetGlobalTriggerActiv(std::uint32_t hash, bool /*value*/) {
  ScenarioHandler* handler = FindTriggerGlobally(hash).first;
  if (!handler) return false;
  handler->SetTriggerActive(hash, true); // kept: a global activation only switches on
  return true;
}

bool ScenarioHandler::SetGlobalTriggerActiv(const std::string& globalName, bool value) {
  const std::uint32_t hash = qsf::StringHash(globalName).getHash();
  if (SetGlobalTriggerActiv(hash, value)) return true;
  logInfo("SetGlobalTriggerActiv cant find the trigger with the Name " + globalName + " Hash " + std::to_string(hash));
  return false;
}

void ScenarioHandler::PrintTriggerInfo(std::uint32_t hash) const {
  const auto [handler, trigger] = FindTriggerGlobally(hash);
  if (handler)
    logInfo("Local Name: \"" + std::string(trigger->name()) + "\" Global Name: \"" +
            std::string(trigger->globalName()) + "\" Stringhash: \"" + std::to_string(hash) + "\"");
}

std::string ScenarioHandler::globalMark() const { return std::string(mDocument ? mDocument->globalMark() : "\xA7"); }

}
