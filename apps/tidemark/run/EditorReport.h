#pragma once
#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tidemark::run {

/// A step of an editing session.
struct EditorStep {
  std::string text;
  bool undone = false;
  struct Creation {
    std::uint64_t entityId = 0;
    std::string layer;
  };
  std::vector<Creation> creations; ///< entities that it makes
};

/// The steps of the editor's list, in their order; nothing in a game.
std::optional<std::vector<EditorStep>> collectEditorSteps();

/// A line for each step; empty in a game.
std::string describeEditorSteps(const std::optional<std::vector<EditorStep>>& steps);
/// Adds the member "operations"; in a game there is none.
void addEditorSteps(const std::optional<std::vector<EditorStep>>& steps, nlohmann::ordered_json& root);

}
