#include "game_plugin/scenario/tick/FaultyLine.h"

#include "game_plugin/scenario/program/CatalogueEntry.h"

#include <algorithm>

namespace script {

namespace {

/// Name of the record of that line; empty if there is none.
template <class Records> std::string_view nameAt(const Records& records, std::uint32_t line) {
  const auto found =
      std::find_if(records.begin(), records.end(), [&](const auto* record) { return record->line == line; });
  return found == records.end() ? std::string_view() : (*found)->name();
}

std::string_view entryAt(const TriggerProgram& trigger, std::uint32_t line) {
  std::string_view name = nameAt(trigger.conditions, line);
  if (name.empty()) name = nameAt(trigger.effects, line);
  for (const ConditionalBlock* block : trigger.conditionalBlocks) {
    if (name.empty()) name = nameAt(block->conditions, line);
    if (name.empty()) name = nameAt(block->thenEffects, line);
    if (name.empty()) name = nameAt(block->elseEffects, line);
  }
  return name;
}

/// The script as global names of triggers begin, which is the same on every machine.
std::string scriptOf(const Program& program) {
  if (program.triggers().empty()) return program.path();
  const TriggerProgram& first = *program.triggers().front();
  const std::size_t length = first.globalName.size() - std::min(first.globalName.size(), first.name.size() + 1);
  return length == 0 ? program.path() : std::string(first.globalName.substr(0, length));
}

}

std::string describeFaultyLine(const Program& program, std::uint32_t line) {
  std::string text = scriptOf(program) + ", line " + std::to_string(line);
  for (const TriggerProgram* trigger : program.triggers())
    if (const std::string_view name = entryAt(*trigger, line); !name.empty()) return text + ", " + std::string(name);
  return text;
}

}
