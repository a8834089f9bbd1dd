#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct GetEquipmentEntitesFromEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The out list is emptied before the units are read: one name for both gives an empty list.",
  };

  Argument units;
  Argument equipmentListOut;
};

static void read(GetEquipmentEntitesFromEntityListEffect& effect, ParameterReader& in) {
  effect.units = in.list(1, "no_list", "EntityList Units", "Persons who hold equipment");
  effect.equipmentListOut = in.listOut(2, "no_list", "EntityListEquipment[out]", "List that gets what they hold");
}

static void run(const GetEquipmentEntitesFromEntityListEffect& effect, ScenarioHandler& handler) {
  handler.ClearEntityList(effect.equipmentListOut);
  forEachEntity(handler, effect.units, [&](qsf::Entity& entity) {
    if (const qsf::Entity* equipment = em5::EntityHelper(entity).getActiveEquipmentEntity())
      handler.AddToEntityList(effect.equipmentListOut, equipment->getId());
  });
}

EFFECT(GetEquipmentEntitesFromEntityList, "EntityLists",
       "Puts the equipment that units hold in their hands into a list")

}
