#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct GetEquipmentEntitesFromEntityListEffect : DefaultEffect {
  Argument units;
  Argument equipmentListOut;
};

static void read(GetEquipmentEntitesFromEntityListEffect& effect, const Tokens& tokens) {
  effect.units = readStringParameter(tokens, 1, "no_list", "EntityList Units", "Persons who hold equipment");
  effect.equipmentListOut =
      readStringParameter(tokens, 2, "no_list", "EntityListEquipment[out]", "List that gets what they hold");
}

static void run(const GetEquipmentEntitesFromEntityListEffect& effect, ScenarioHandler& handler) {
  // Kept: cleared before the units are read, so one name for both gives an empty list.
  handler.ClearEntityList(effect.equipmentListOut);
  forEachEntity(handler, effect.units, [&](qsf::Entity& entity) {
    if (const qsf::Entity* equipment = em5::EntityHelper(entity).getActiveEquipmentEntity())
      handler.AddToEntityList(effect.equipmentListOut, equipment->getId());
  });
}

EFFECT(GetEquipmentEntitesFromEntityList, "EntityLists",
       "Puts the equipment that units hold in their hands into a list")

}
