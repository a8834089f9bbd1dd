#include "game_plugin/scenario/lifecycle/ScriptedCommands.h"

#include <algorithm>

namespace script {

void ScriptedCommands::beginBid(const std::string& name, const std::string& mouseIcon) {
  ScriptedCommandRecord* row = findRow(name);
  if (!row) return addRow(name, mouseIcon);
  if (!row->armed) row->priority = 0;
  row->armed = false;
}

void ScriptedCommands::confirmBid(const std::string& name, float priority) {
  ScriptedCommandRecord* row = findRow(name);
  if (!row) return addRow(name, {});
  row->priority = priority;
  row->armed = true;
}

const ScriptedCommandRecord* ScriptedCommands::find(const std::string& name) const { return findRow(name); }

ScriptedCommandRecord* ScriptedCommands::findRow(const std::string& name) const {
  const auto found =
      std::find_if(mRows.begin(), mRows.end(), [&](const auto& row) { return row->commandName == name; });
  return found == mRows.end() ? nullptr : found->get();
}

void ScriptedCommands::addRow(const std::string& name, const std::string& mouseIcon) {
  mRows.push_back(std::make_unique<ScriptedCommandRecord>(ScriptedCommandRecord{0, mouseIcon, name, false}));
}

}
