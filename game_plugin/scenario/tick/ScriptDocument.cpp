#include "game_plugin/scenario/tick/ScriptDocument.h"

namespace script {

const std::vector<std::uint64_t>& ScenarioTrigger::callers() const {
  static const std::vector<std::uint64_t> NONE;
  return call ? call->callers : NONE;
}

TriggerCall& ScenarioTrigger::makeCall() {
  if (!call) call = std::make_unique<TriggerCall>();
  return *call;
}

ScriptDocument::ScriptDocument(std::shared_ptr<const Program> shared)
    : program(std::move(shared)), triggers(program->triggers().size()), states(program->numberOfStates()) {
  for (std::size_t i = 0; i < triggers.size(); ++i) {
    triggers[i].program = program->triggers()[i];
    triggers[i].active = triggers[i].program->initialActive;
    triggers[i].looped = triggers[i].program->initialLooped;
  }
}

ScenarioTrigger* ScriptDocument::findTrigger(std::string_view name) {
  const auto index = program->findTrigger(name);
  return index ? &triggers[*index] : nullptr;
}

ScenarioTrigger* ScriptDocument::findTrigger(std::uint32_t hash) {
  const auto index = program->findTrigger(hash);
  return index ? &triggers[*index] : nullptr;
}

}
