#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct WriteCoreEntityToEntityListEffect : DefaultEffect {
  Argument entityListOut;
};

static void read(WriteCoreEntityToEntityListEffect& effect, ParameterReader& in) {
  effect.entityListOut =
      in.listOut(1, "no_list", "EntityListOut", "Outputs the entity which contains the PlayerCamera");
}

static void run(const WriteCoreEntityToEntityListEffect& effect, ScenarioHandler& handler) {
  handler.ClearEntityList(effect.entityListOut);
  if (const qsf::Entity* core = qsf::getMainMap().getCoreEntity())
    handler.AddToEntityList(effect.entityListOut, core->getId());
}

EFFECT(WriteCoreEntityToEntityList, "EntityLists",
       "Write the Entity with the id=0 to a EntityList which is cleared before. The entity contains cool things which "
       "you might want to access like the em5::WeatherComponent")

}
