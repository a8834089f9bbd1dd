#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/GuiDocuments.h"

namespace script {

struct IsDocumentVisibleCondition : DefaultCondition {
  Argument uniqueId;
};

static void read(IsDocumentVisibleCondition& condition, ParameterReader& in) {
  condition.uniqueId = in.of(ParameterRole::DOCUMENT, 1, "UniqueId", "UniqueId",
                             "The Id of the document which is given in the loadrml-effect");
}

static bool test(const IsDocumentVisibleCondition& condition, ScenarioHandler&) {
  const GuiDocuments* documents = GuiDocuments::get();
  return documents && documents->isVisible(condition.uniqueId);
}

CONDITION(IsDocumentVisible, "GUI", "Returns true if a custom GUI document is visible")

}
