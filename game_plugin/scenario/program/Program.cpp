#include "game_plugin/scenario/program/Program.h"

#include <algorithm>

namespace script {

Program::Program(std::string path, std::size_t textSize)
    : mPath(std::move(path)), mMemory(std::clamp<std::size_t>(textSize, 256, 64 * 1024)) {}

void Program::buildIndices() const {
  if (!mByName.empty()) return;
  for (std::uint32_t i = 0; i < mTriggers.size(); ++i) {
    mByName.try_emplace(mTriggers[i]->name, i); // the first trigger of a name wins
    mByHash.try_emplace(mTriggers[i]->globalNameHash, i);
  }
}

std::optional<std::uint32_t> Program::findTrigger(std::string_view name) const {
  buildIndices();
  const auto found = mByName.find(name);
  return found == mByName.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::uint32_t> Program::findTrigger(std::uint32_t hash) const {
  buildIndices();
  const auto found = mByHash.find(hash);
  return found == mByHash.end() ? std::nullopt : std::optional(found->second);
}

std::string_view Program::triggerAt(std::uint32_t line) const {
  const auto behind =
      std::upper_bound(mTriggers.begin(), mTriggers.end(), line,
                       [](std::uint32_t at, const TriggerProgram* trigger) { return at < trigger->line; });
  return behind == mTriggers.begin() ? std::string_view() : (*std::prev(behind))->name;
}

}
