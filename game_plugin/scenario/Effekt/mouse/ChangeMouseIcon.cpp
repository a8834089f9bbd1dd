#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

namespace script {

struct ChangeMouseIconEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "svar(name) is only compared with no_icon: the game is given the text as it stands, not what it resolves to.",
  };

  Argument mouseIcon;
};

static void read(ChangeMouseIconEffect& effect, ParameterReader& in) {
  effect.mouseIcon =
      in.text(1, "no_icon", "MouseIcon", "Name of the icon, like cool_with_extinguisher; default.rml has them");
}

static void run(const ChangeMouseIconEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(handler.ResolveString(effect.mouseIcon), "no_icon", "ChangeMouseIconEffect::Icon not found")) return;
  if (const qsf::UniqueInstance<em5::EmergencyGui> gui; gui) gui->setMouseCursor(effect.mouseIcon.text());
}

EFFECT(ChangeMouseIcon, "GUI", "Changes the mouse cursor")

}
