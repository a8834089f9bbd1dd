#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct ForceHelicopterFlyingEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "No helicopter takes off or lands: the list is read, and nothing else happens.",
  };

  Argument entityList;
};

static void read(ForceHelicopterFlyingEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Helicopters");
  in.flag(2, true, "Force Flying", "Without influence");
}

static void run(const ForceHelicopterFlyingEffect& effect, ScenarioHandler& handler) {
  // Scripts carry the line from times in which it was planned; it must neither fault nor start to act.
  handler.ResolveEntityList(effect.entityList);
}

EFFECT(ForceHelicopterFlying, "Units", "Was meant to keep helicopters in the air; does nothing")

}
