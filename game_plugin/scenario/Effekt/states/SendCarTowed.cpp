#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/message/MessageSystem.h"

namespace script {

struct SendCarTowedEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The message goes out for each id, also for one without an entity.",
  };

  Argument entityList;
};

static void read(SendCarTowedEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Vehicles that count as towed away");
}

static void run(const SendCarTowedEffect& effect, ScenarioHandler& handler) {
  for (const std::uint64_t id : handler.ResolveEntityList(effect.entityList))
    qsf::Qsf::instance()->getMessageSystem().emitMessage(
        qsf::MessageConfiguration(em5::Messages::EM5_ACTION_CAR_PICKED_UP_BY_TOWCAR, id));
}

EFFECT(SendCarTowed, "Elmbrook", "Tells the game that vehicles were towed away, which forces their respawn")

}
