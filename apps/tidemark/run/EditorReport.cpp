#include "apps/tidemark/run/EditorReport.h"

#include "apps/tidemark/text/Encoding.h"
#include "apps/tidemark/text/Table.h"

#include "qsf/Qsf.h"
#include "qsf/editor/Application.h"
#include "qsf/editor/base/CompoundOperation.h"
#include "qsf/editor/base/CreateEntityOperation.h"
#include "qsf/map/LayerManager.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

namespace tidemark::run {

namespace {

using Json = nlohmann::ordered_json;
using qsf::editor::base::CompoundOperation;
using qsf::editor::base::CreateEntityOperation;
using qsf::editor::base::Operation;

void collectCreations(const Operation& operation, EditorStep& step) {
  if (const auto* creation = dynamic_cast<const CreateEntityOperation*>(&operation)) {
    const qsf::Layer* layer = qsf::Qsf::instance()->getLayerManager().getLayerById(creation->getLayerId());
    step.creations.push_back({creation->getEntityId(), layer ? toUtf8(layer->getName()) : ""});
  }
  if (const auto* compound = dynamic_cast<const CompoundOperation*>(&operation))
    for (const auto& part : compound->getOperations())
      collectCreations(*part, step);
}

Json stepToJson(const EditorStep& step) {
  Json creations = Json::array();
  for (const EditorStep::Creation& creation : step.creations)
    creations.push_back({{"entity", creation.entityId}, {"layer", creation.layer}});
  return {{"text", step.text}, {"undone", step.undone}, {"creates", creations}};
}

}

std::optional<std::vector<EditorStep>> collectEditorSteps() {
  const qsf::UniqueInstance<qsf::editor::Application> editor;
  if (!editor) return std::nullopt;
  const qsf::editor::base::OperationManager& manager = editor->getOperationManager();
  std::vector<EditorStep> steps;
  for (const auto& operation : manager.getSteps()) {
    EditorStep step{toUtf8(operation->getText()), steps.size() >= manager.getNumberOfUndoSteps(), {}};
    collectCreations(*operation, step);
    steps.push_back(std::move(step));
  }
  return steps;
}

std::string describeEditorSteps(const std::optional<std::vector<EditorStep>>& steps) {
  if (!steps) return {};
  if (steps->empty()) return "\nno operations in the editor\n";
  std::vector<std::vector<std::string>> rows;
  for (const EditorStep& step : *steps) {
    rows.push_back({fmt::format("{}", rows.size() + 1), step.text});
    if (step.undone) rows.back().emplace_back("undone");
  }
  return fmt::format("\n{} operation{} in the editor\n", steps->size(), steps->size() == 1 ? "" : "s") +
         layOut(std::move(rows), "    ", LONGEST_SENTENCE);
}

void addEditorSteps(const std::optional<std::vector<EditorStep>>& steps, Json& root) {
  if (!steps) return;
  Json list = Json::array();
  for (const EditorStep& step : *steps)
    list.push_back(stepToJson(step));
  root["operations"] = std::move(list);
}

}
