#include "game_plugin/gui/GuiInstanceManager.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ConnectButtonToTriggerEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Neither document nor button need to be there: a document that is loaded later is connected, too.",
      "Connecting a second time adds to the first; nothing takes a connection away but the end of its script.",
      "The element needs an attribute such as onclick, whose value may be any text but onClose.",
  };

  Argument buttonId;
  Argument triggerId;
  Argument uniqueId;
};

static void read(ConnectButtonToTriggerEffect& effect, ParameterReader& in) {
  effect.buttonId = in.of(ParameterRole::ELEMENT, 1, "no_button", "ButtonId", "The Id of the button in the RML-file");
  effect.triggerId =
      in.trigger(2, "no_trigger", "TriggerId", "The trigger which is activated when the button is clicked");
  effect.uniqueId = readUniqueId(3, in);
}

static void run(const ConnectButtonToTriggerEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.buttonId.text(), "no_button", "ConnectButtonToTriggerEffect::ButtonId was not found")) return;
  if (isLeftAt(effect.triggerId.text(), "no_trigger", "ConnectButtonToTriggerEffect::TriggerId was not found")) return;
  if (GuiInstanceManager* manager = GuiInstanceManager::get())
    manager->ConnectButtonToTrigger(effect.buttonId, effect.triggerId, handler, effect.uniqueId);
}

EFFECT(ConnectButtonToTrigger, "GUI",
       "Connect a certain button to a trigger. The ButtonId is used and should be unique")

}
