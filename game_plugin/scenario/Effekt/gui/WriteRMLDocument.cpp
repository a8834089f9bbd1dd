#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <Rocket/Core/ElementDocument.h>

namespace script {

struct WriteRMLDocumentEffect : DefaultEffect {
  Argument documentName;
};

static void read(WriteRMLDocumentEffect& effect, ParameterReader& in) {
  effect.documentName = readExistingDocument(1, in);
}

static void run(const WriteRMLDocumentEffect& effect, ScenarioHandler&) {
  if (!GUIEventListener::get()) return;
  if (const Rocket::Core::ElementDocument* document = GUIEventListener::findElementDocument(effect.documentName))
    logInfo(document->GetInnerRML());
}

EFFECT(WriteRMLDocument, "GUI", "")

}
