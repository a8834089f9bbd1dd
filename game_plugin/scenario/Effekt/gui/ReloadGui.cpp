#include "game_plugin/gui/GUIEventListener.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/gui/GuiDocument.h"

#include <Rocket/Core/ElementDocument.h>

namespace script {

struct ReloadGuiEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The elements are new: what scripts have changed and connected in the document before is lost.",
      "The document is visible afterwards, whatever it was.",
  };

  Argument documentName;
};

static void read(ReloadGuiEffect& effect, ParameterReader& in) { effect.documentName = readExistingDocument(1, in); }

static void run(const ReloadGuiEffect& effect, ScenarioHandler&) {
  if (!GUIEventListener::get()) return;
  qsf::GuiDocument* document = GUIEventListener::findDocument(effect.documentName);
  const Rocket::Core::ElementDocument* elements = document ? document->getElementDocument() : nullptr;
  if (!elements) return;
  const std::string file(elements->GetSourceURL());
  document->unload();
  document->loadByFilename(file);
  document->show();
}

EFFECT(ReloadGui, "GUI", "Hot reloads gui - really nice to instantly see changes")

}
