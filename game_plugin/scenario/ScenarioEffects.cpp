#include "game_plugin/scenario/ScenarioEffects.h"

#include "game_plugin/scenario/EntryIndex.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ScenarioConditions.h"
#include "game_plugin/scenario/ScenarioHandler.h"
#include "game_plugin/scenario/UseConditionalBlockEffect.h"

namespace script {

extern const EffectEntry SendHintEffectEntry;
extern const EffectEntry ShowDebuggingGuiEffectEntry;
extern const EffectEntry UseConditionalBlockEffectEntry;

ScenarioEffects::ScenarioEffects(ScenarioHandler* handler)
    : mBrill(handler), mTarn(handler), mEvent(handler), mGui(handler), mComponentsAndVariables(handler),
      mMultiplayer(handler), mPositionAndRotation(handler), mGamepad(handler), mEditor(handler), mHandler(handler) {}

ScenarioEffects::~ScenarioEffects() = default;

std::vector<const EffectGroup*> ScenarioEffects::groupsInCreationOrder() const {
  return {&mBrill,   &mTarn,  &mEvent, &mComponentsAndVariables, &mGui, &mMultiplayer, &mPositionAndRotation,
          &mGamepad, &mEditor};
}

std::vector<const EffectGroup*> ScenarioEffects::groupsInExecutionOrder() const { return groupsInCreationOrder(); }

EffectGroup::Chain ScenarioEffects::ownEntries() {
  static constexpr const EffectEntry* OWN[] = {&SendHintEffectEntry, &ShowDebuggingGuiEffectEntry,
                                               &UseConditionalBlockEffectEntry};
  return OWN;
}

DefaultEffect* ScenarioEffects::create(const Tokens& tokens) const {
  static const EntryIndex<EffectEntry> index = [this] {
    EntryIndex<EffectEntry> built;
    built.add(ownEntries());
    for (const EffectGroup* group : groupsInCreationOrder())
      built.add(group->chain());
    return built;
  }();

  if (const EffectEntry* entry = index.find(tokens[0]))
    if (DefaultEffect* record = entry->create(*entry, tokens)) return record;
  logError("Effect of type: " + tokens[0] + " can't be found.");
  return nullptr;
}

std::uint32_t ScenarioEffects::run(const Effects& effects, std::uint32_t triggerHash) const {
  for (const DefaultEffect* effect : effects) {
    const EffectEntry& entry = *effect->entry;
    switch (entry.kind) {
    case EffectKind::Return:
      return 1;
    case EffectKind::PrintTriggerInfo:
      mHandler->PrintTriggerInfo(triggerHash);
      break;
    case EffectKind::UseConditionalBlock:
      if (runBlock(*effect) == 1) return 1;
      break;
    case EffectKind::Ordinary:
      if (entry.run)
        entry.run(*effect, *mHandler, triggerHash);
      else
        logInfo("[MS] Error: Effect " + std::string(entry.name) + " was not found");
      break;
    }
    if (mHandler->IsStopped()) return 1;
  }
  return 0;
}

std::uint32_t ScenarioEffects::runBlock(const DefaultEffect& effect) const {
  const auto& use = static_cast<const UseConditionalBlockEffect&>(effect);
  // Only a handwritten line can name indices that don't exist; the fault then ends the tick of this script.
  const ScenarioTrigger& trigger = mHandler->GetDocument()->triggers.at(static_cast<std::size_t>(use.triggerIndex));
  const ConditionalBlock& block = *trigger.conditionalBlocks.at(static_cast<std::size_t>(use.blockIndex));
  std::uint32_t fulfilled = 0;
  const bool holds = mHandler->GetConditions().evaluate(
      qsf::Time::ZERO, block.conditions, static_cast<std::uint32_t>(block.conditions.size()), fulfilled, nullptr);
  return run(holds ? block.thenEffects : block.elseEffects, trigger.globalNameHash);
}

}
