#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "em5/map/EntityHelper.h"
#include "qsf/game/EquipmentComponent.h"

namespace script {

struct HasEquipmentCondition : DefaultCondition {
  Argument equipment;
  Argument entityList;
  Argument entityListOutWithEquipment;
  Argument entityListOutWithoutEquipment;
};

static void read(HasEquipmentCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "EntityList which should be checked");
  condition.equipment = in.raw(2, "no_Equipment", "Equipment", "Name which should be matched");
  condition.entityListOutWithEquipment = in.listOut(
      3, "no_list1", "EntityListOutWithEquipment",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria.");
  condition.entityListOutWithoutEquipment =
      in.listOut(4, "no_list2", "EntityListOutWithoutEquipment",
                 "All the entities which dont pass the check are written here. Usefull if your effect gives "
                 "the equipment to these "
                 "entities");
}

static bool holds(qsf::Entity& entity, const std::string& equipmentName) {
  const qsf::Entity* held = em5::EntityHelper(entity).getActiveEquipmentEntity();
  const auto* equipment = held ? held->getComponent<qsf::game::EquipmentComponent>() : nullptr;
  return equipment && equipment->getEquipmentName() == equipmentName;
}

static bool test(const HasEquipmentCondition& condition, ScenarioHandler& handler) {
  const EntityIds ids = handler.ResolveEntityList(condition.entityList);
  handler.ClearEntityList(condition.entityListOutWithEquipment);
  handler.ClearEntityList(condition.entityListOutWithoutEquipment);
  for (const std::uint64_t id : ids)
    if (qsf::Entity* entity = findEntity(id))
      handler.AddToEntityList(holds(*entity, condition.equipment.text()) ? condition.entityListOutWithEquipment
                                                                         : condition.entityListOutWithoutEquipment,
                              id);
  return handler.getEntityListSize(condition.entityListOutWithEquipment) != 0;
}

CONDITION(HasEquipment, "Units",
          "True if at least one entity has the given equipment. Returns all units which have the equipment and all "
          "units which dont have the equipment(in another list)")

}
