#include "game_plugin/scenario/program/ParameterReader.h"

namespace script {

struct DoSthCoolEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "It does nothing at all.",
  };

  Argument entityList;
};

static void read(DoSthCoolEffect& effect, ParameterReader& in) {
  effect.entityList = in.unused(1, "no_list", "EntityList", "Isn't looked at");
}

static void run(const DoSthCoolEffect& /*effect*/, ScenarioHandler& /*handler*/) {}

EFFECT(DoSthCool, "Ogre Mesh", "Does nothing; scripts that name it load")

}
