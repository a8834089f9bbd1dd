#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ShowElementEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "It changes nothing: elements are shown and hidden by SetAttribute of their style.",
  };

  Argument elementId;
  bool show = true;
};

static void read(ShowElementEffect& effect, ParameterReader& in) {
  effect.elementId = in.of(ParameterRole::ELEMENT, 1, "no_element", "ElementId", "The Id of the element");
  effect.show = in.flag(2, true, "ShowOrHide", "true to show, false to hide; without influence");
  in.unused(3, "-1", "Unique Id", "Without influence: the documents of all ids are looked at");
}

static void run(const ShowElementEffect& effect, ScenarioHandler&) {
  if (isLeftAt(effect.elementId.text(), "no_element", "ShowElementEffect::ElementId was not found")) return;
  GuiInstanceManager* manager = GuiInstanceManager::get();
  if (!manager) return;
  for (const auto& instance : manager->getInstances())
    if (Rocket::Core::Element* element = instance->findElement(effect.elementId))
      GuiInstance::showElement(*element, effect.show);
}

EFFECT(ShowElement, "GUI", "Show or hide a GUI-element")

}
