#include "game_plugin/scenario/loading/ScriptParser.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/loading/RunningHost.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/program/ProgramBuilder.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioEffects.h"
#include "game_plugin/syntax/ScriptText.h"

#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/log/FaultCounter.h"

#include <fstream>
#include <stdexcept>

namespace script {

namespace {

using syntax::Line;
using syntax::LineKind;

std::uint8_t toMultiplayerMode(std::string_view text) {
  return text == "MP_GUI_Sync" ? 1 : text == "MP_Run_Independend" ? 2 : 0;
}

constexpr std::string_view MULTIPLAYER_MODES[] = {"MP_Trigger_Runs_On_Hostside", "MP_GUI_Sync", "MP_Run_Independend"};

/// Makes records of the lines of one text.
class Loader {
public:
  Loader(ProgramBuilder& builder, const std::string& globalNamePrefix) : mBuilder(builder), mPrefix(globalNamePrefix) {}

  void read(std::string_view text) {
    syntax::ScriptText script(text);
    while (script.next())
      readLine(script.line());
    closeTrigger();
  }

private:
  void readLine(const Line& line) {
    if (line.kind == LineKind::EMPTY || line.kind == LineKind::COMMENT) return;
    mBuilder.setLine(line.number);
    switch (line.kind) {
    case LineKind::INVALID:
      return drop(line, LOG_INFO, "Command is invalid: " + std::string(line.text));
    case LineKind::NEW_TRIGGER:
      return beginTrigger(line);
    case LineKind::CONDITIONS:
      return beginConditions(line);
    case LineKind::IF:
      return beginBlock();
    case LineKind::CONDITION:
      return readCondition(line);
    case LineKind::EFFECT:
      return readEffect(line);
    default:
      return; // the text's reader has drawn the consequences
    }
  }

  void drop(const Line& line, int severity, const std::string& message) {
    mBuilder.log(severity, message);
    mBuilder.drop(line.tokens.empty() ? 1 : line.columnOf(line.tokens.front().begin), message);
  }

  void beginTrigger(const Line& line) {
    closeTrigger();
    ParameterReader in(line.tokens, mBuilder);
    mTrigger = mBuilder.memory().create<TriggerProgram>();
    const std::string_view name = in.raw(1, "Trigger_1", "TriggerName", "");
    mTrigger->globalName = mBuilder.memory().store(mPrefix, "/", name);
    mTrigger->name = mTrigger->globalName.substr(mPrefix.size() + 1);
    mTrigger->line = line.number;
    mBuilder.addTrigger(*mTrigger); // already: what the further words have wrong is this trigger's
    mTrigger->initialActive = in.flag(2, true, "Active", "");
    mTrigger->initialLooped = in.flag(3, false, "Looped", "");
    mTrigger->multiplayerMode =
        toMultiplayerMode(in.words(4, MULTIPLAYER_MODES[0], "MultiplayerMode", "", MULTIPLAYER_MODES));
    const qsf::StringHash hash(mTrigger->globalName);
    mTrigger->globalNameHash = hash.getHash();
    if (const qsf::Qsf* host = qsf::Qsf::instance())
      host->getStringHashManager().registerStringHash(hash, std::string(mTrigger->globalName));
  }

  /// Gives the last trigger what its lines have made. Until then they are collected here, so that the lists take no
  /// more memory than they need.
  void closeTrigger() {
    if (!mTrigger) return;
    closeBlock();
    mTrigger->conditions = Conditions(mBuilder.memory(), mTriggerConditions);
    mTrigger->effects = Effects(mBuilder.memory(), mTriggerEffects);
    mTrigger->conditionalBlocks = RecordList<ConditionalBlock>(mBuilder.memory(), mBlocks);
    mTriggerConditions.clear();
    mTriggerEffects.clear();
    mBlocks.clear();
    // A count above the number of conditions stays, and such a trigger never fires; scripts park triggers that way.
    if (mTrigger->requiredConditions <= 0)
      mTrigger->requiredConditions = static_cast<std::int32_t>(mTrigger->conditions.size());
  }

  void closeBlock() {
    if (mBlocks.empty()) return;
    ConditionalBlock& block = *mBlocks.back();
    block.conditions = Conditions(mBuilder.memory(), mBlockConditions);
    block.thenEffects = Effects(mBuilder.memory(), mThenEffects);
    block.elseEffects = Effects(mBuilder.memory(), mElseEffects);
    mBlockConditions.clear();
    mThenEffects.clear();
    mElseEffects.clear();
  }

  void beginConditions(const Line& line) {
    if (line.tokens.size() < 2 || line.tokens[1].text.empty()) return;
    const int count = ParameterReader(line.tokens, mBuilder).integer(1, -1, "", "");
    if (count == -1) return;
    checkTrigger();
    mTrigger->requiredConditions = count;
  }

  void beginBlock() {
    checkTrigger();
    closeBlock();
    mBlocks.push_back(mBuilder.memory().create<ConditionalBlock>());
    const std::string trigger = std::to_string(mBuilder.numberOfTriggers() - 1);
    const std::string block = std::to_string(mBlocks.size() - 1);
    const syntax::Tokens tokens{{"UseConditionalBlock"}, {trigger}, {block}};
    mTriggerEffects.push_back(makeEffect(tokens));
  }

  void readCondition(const Line& line) {
    const std::string_view name = line.tokens.front().text;
    if (name == "Always") return; // a pseudo condition: scripts write it where nothing is to be tested
    ParameterReader in(line.tokens, mBuilder);
    const ConditionEntry* entry = ScenarioConditions::find(name);
    DefaultCondition* condition = entry ? entry->create(*entry, in) : nullptr;
    if (!condition) return drop(line, LOG_INFO, "[MS] Error: Condition " + std::string(name) + " was not found");
    checkTrigger();
    condition->line = line.number;
    condition->expected = !line.negated;
    (line.inBlock ? mBlockConditions : mTriggerConditions).push_back(condition);
  }

  void readEffect(const Line& line) {
    DefaultEffect* effect = makeEffect(line.tokens);
    if (!effect)
      return drop(line, LOG_ERROR, "Effect of type: " + std::string(line.tokens.front().text) + " can't be found.");
    checkTrigger();
    (!line.inBlock ? mTriggerEffects : line.inElse ? mElseEffects : mThenEffects).push_back(effect);
  }

  DefaultEffect* makeEffect(const syntax::Tokens& tokens) {
    ParameterReader in(tokens, mBuilder);
    const EffectEntry* entry = ScenarioEffects::find(tokens.front().text);
    DefaultEffect* effect = entry ? entry->create(*entry, in) : nullptr;
    if (effect) effect->line = mBuilder.line();
    return effect;
  }

  /// What a line makes belongs to the last trigger; without one the script can't be used.
  void checkTrigger() const {
    if (!mTrigger) throw std::out_of_range("invalid vector<T> subscript");
  }

  ProgramBuilder& mBuilder;
  const std::string& mPrefix;
  TriggerProgram* mTrigger = nullptr; ///< the last one
  std::vector<const DefaultCondition*> mTriggerConditions, mBlockConditions;
  std::vector<const DefaultEffect*> mTriggerEffects, mThenEffects, mElseEffects;
  std::vector<ConditionalBlock*> mBlocks; ///< of the last trigger
};

/// Behind the runtime's own words, which authors can't be expected to know: what they mean here.
std::string explain(const std::exception& fault, const ProgramBuilder& builder) {
  std::string text = fault.what();
  if (!builder.hasTriggers())
    text += " (the line stands before the first InitNewTrigger)";
  else if (dynamic_cast<const std::out_of_range*>(&fault))
    text += " (a parameter is missing that the entry can't do without)";
  return text;
}

}

std::shared_ptr<const Program> ScriptParser::parse(const std::string& path, const std::string& globalNamePrefix) const {
  std::string text;
  if (!readFile(path, text)) text.clear(); // silently: the manager has told of missing files
  return parseText(text, path, globalNamePrefix);
}

std::shared_ptr<const Program> ScriptParser::parseText(std::string_view text, const std::string& name,
                                                       const std::string& globalNamePrefix) const {
  return parseText(text, name, globalNamePrefix, RunningHost());
}

std::shared_ptr<const Program> ScriptParser::parseText(std::string_view text, const std::string& name,
                                                       const std::string& globalNamePrefix,
                                                       const ReadingHost& host) const {
  const ExecutionScope scope(nullptr);
  ProgramBuilder builder(name, text, host);
  try {
    Loader(builder, globalNamePrefix).read(text);
    return builder.finish();
  } catch (const std::exception& fault) {
    const std::string reason = explain(fault, builder);
    const std::string message =
        "The script \"" + name + "\" can't be used, line " + std::to_string(builder.line()) + ": " + reason;
    // The program's exit code tells of it.
    if (const qsf::Qsf* running = qsf::Qsf::instance()) running->getFaultCounter().add(message);
    return builder.fail(message, reason);
  }
}

bool ScriptParser::readFile(const std::string& path, std::string& text) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return false;
  char buffer[64 * 1024];
  while (file.read(buffer, sizeof buffer) || file.gcount() > 0)
    text.append(buffer, static_cast<std::size_t>(file.gcount()));
  return true;
}

}
