#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/ElementsOfDocuments.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ShowGuiDocumentEffect : DefaultEffect {
  Argument uniqueId;
  bool show = true;
};

static void read(ShowGuiDocumentEffect& effect, ParameterReader& in) {
  effect.uniqueId = readUniqueId(1, in);
  effect.show = in.flag(2, true, "ShowOrHide", "true to show the document, false to hide it");
}

static void run(const ShowGuiDocumentEffect& effect, ScenarioHandler&) {
  forEachDocument(effect.uniqueId, [&](GuiInstance& instance) { instance.setVisible(effect.show); });
}

EFFECT(ShowGuiDocument, "GUI", "Show or hide a complete gui document")

}
