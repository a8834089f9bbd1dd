#include "game_plugin/scenario/tick/ScenarioEffects.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/ExecutionPoint.h"
#include "game_plugin/scenario/program/BlankEntry.h"
#include "game_plugin/scenario/program/EntryIndex.h"
#include "game_plugin/scenario/program/UseConditionalBlockEffect.h"
#include "game_plugin/scenario/tick/ScenarioConditions.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace script {

/// How deep handwritten block calls have led into each other, and what they have cost. Blocks of `If` lines don't nest,
/// but a handwritten line may call a block from a block, itself included.
struct ScenarioEffects::Nesting {
  static constexpr std::uint32_t MAXIMUM_DEPTH = 100;
  static constexpr std::size_t MAXIMUM_RECORDS = 1'000'000;

  std::uint32_t depth = 0;
  std::size_t records = 0; ///< conditions and effects of the blocks that were called from blocks

  /// Throws std::runtime_error when the calls would not come to an end in reasonable time.
  void enter(std::size_t blockRecords) {
    if (++depth > MAXIMUM_DEPTH)
      throw std::runtime_error("conditional blocks call each other more than " + std::to_string(MAXIMUM_DEPTH) +
                               " levels deep");
    if (depth > 1) records += blockRecords + 1;
    if (records > MAXIMUM_RECORDS)
      throw std::runtime_error("conditional blocks that call each other have run more than " +
                               std::to_string(MAXIMUM_RECORDS) + " lines");
  }
  void leave() { --depth; }
};

extern const EffectEntry SendHintEffectEntry;
extern const EffectEntry ShowDebuggingGuiEffectEntry;
extern const EffectEntry UseConditionalBlockEffectEntry;

namespace {

constexpr const EffectEntry* OWN_ENTRIES[] = {&SendHintEffectEntry, &ShowDebuggingGuiEffectEntry,
                                              &UseConditionalBlockEffectEntry};
/// The entries that are asked before all groups; they are no group's.
constexpr EffectGroup OWN_EFFECTS{"", OWN_ENTRIES};

}

std::span<const EffectGroup* const> ScenarioEffects::groups() {
  static constexpr const EffectGroup* GROUPS[] = {&OWN_EFFECTS,
                                                  &ScenarioEffects_Brill,
                                                  &ScenarioEffects_Tarn,
                                                  &ScenarioEffects_Event,
                                                  &ComponentsAndVariablesEffects,
                                                  &ScenarioEffects_Gui,
                                                  &MPEffects,
                                                  &PositionAndRotationEffects,
                                                  &GamepadEffects,
                                                  &ScenarioEffects_Editor};
  return GROUPS;
}

const EffectEntry* ScenarioEffects::find(std::string_view name) {
  static const EntryIndex<EffectEntry> index = [] {
    EntryIndex<EffectEntry> built;
    for (const EffectGroup* group : groups())
      built.add(group->chain);
    return built;
  }();
  return BlankEntry::replace(index.find(name));
}

std::uint32_t ScenarioEffects::run(const Effects& effects, std::uint32_t triggerHash) const {
  Nesting nesting;
  return runList(effects, triggerHash, nesting);
}

std::uint32_t ScenarioEffects::runList(const Effects& effects, std::uint32_t triggerHash, Nesting& nesting) const {
  for (const DefaultEffect* effect : effects) {
    const EffectEntry& entry = *effect->entry;
    executionPoint.line = effect->line;
    switch (entry.kind) {
    case EffectKind::RETURN:
      return 1;
    case EffectKind::PRINT_TRIGGER_INFO:
      mHandler->PrintTriggerInfo(triggerHash);
      break;
    case EffectKind::USE_CONDITIONAL_BLOCK:
      if (runBlock(*effect, nesting) == 1) return 1;
      break;
    case EffectKind::ORDINARY:
      if (entry.run)
        entry.run(*effect, *mHandler, triggerHash);
      else
        logInfo("[MS] Error: Effect " + std::string(entry.name) + " was not found");
      break;
    }
    if (mHandler->isStopped()) return 1;
  }
  return 0;
}

std::uint32_t ScenarioEffects::runBlock(const DefaultEffect& effect, Nesting& nesting) const {
  const auto& use = static_cast<const UseConditionalBlockEffect&>(effect);
  // Only a handwritten line can name indices that don't exist; the fault then ends the tick of this script.
  const auto& triggers = mHandler->getDocument()->program->triggers();
  const std::size_t index = static_cast<std::size_t>(use.triggerIndex);
  if (index >= triggers.size()) throw std::out_of_range("invalid vector<T> subscript");
  const TriggerProgram& trigger = *triggers[index];
  const ConditionalBlock& block = *trigger.conditionalBlocks.at(static_cast<std::size_t>(use.blockIndex));
  nesting.enter(block.conditions.size() + std::max(block.thenEffects.size(), block.elseEffects.size()));
  std::uint32_t fulfilled = 0;
  const bool holds = mHandler->getConditions().evaluate(
      qsf::Time::ZERO, block.conditions, static_cast<std::uint32_t>(block.conditions.size()), fulfilled, nullptr);
  const std::uint32_t result = runList(holds ? block.thenEffects : block.elseEffects, trigger.globalNameHash, nesting);
  nesting.leave();
  return result;
}

}
