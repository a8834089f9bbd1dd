#include "game_plugin/scenario/world/UnitTypes.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/hints/Hints.h"
#include "game_plugin/scenario/language/WordTable.h"

#include "em5/component/BuildingComponent.h"
#include "em5/component/TreeComponent.h"
#include "em5/map/EntityHelper.h"
#include "qsf/Qsf.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/map/ComponentMapQuery.h"

namespace script {

namespace {

using UnitTest = bool (*)(qsf::Entity& entity);

constexpr Word<UnitTest> UNIT_TYPES[] = {
    {"PlayerVehicles", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isSquadVehicle(); }},
    {"PlayerPersons", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isSquadPerson(); }},
    {"Civilian", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isCivilPerson(); }},
    {"Tree", [](qsf::Entity& entity) { return entity.getComponent<em5::TreeComponent>() != nullptr; }},
    {"Building", [](qsf::Entity& entity) { return entity.getComponent<em5::BuildingComponent>() != nullptr; }},
    {"ObjectBurning", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isBurning(); }},
    {"ObjectBurnable", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isBurnable(); }},
    {"Gangster", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isGangsterPerson(); }},
    {"InjuredPersons", [](qsf::Entity& entity) { return em5::EntityHelper(entity).isPersonInjured(); }},
};

/// Null for a text that is no unit type.
UnitTest findUnitTest(std::string_view text) { return lookUp(UNIT_TYPES, text).value_or(nullptr); }

bool passes(UnitTest test, qsf::Entity* entity, const std::string& unitType) {
  if (test) return entity && test(*entity);
  logInfo("CheckUnitType: Unittype \"" + unitType + "\" is not defined");
  if (hints::isOn())
    hints::tell(HintKind::WORD, "\"" + unitType + "\" is no unit type", hints::nearest(unitType, unitTypeWords()));
  return false;
}

}

bool CheckUnitType(std::uint64_t entityId, const std::string& unitType) {
  return passes(findUnitTest(unitType), qsf::getMainMap().getEntityById(entityId), unitType);
}

std::vector<std::uint64_t> findEntitiesOfUnitType(const std::string& unitType, std::uint64_t centerId, float range) {
  const qsf::Map& map = qsf::getMainMap();
  const qsf::ComponentMapQuery query(map);
  qsf::Entity* center = map.getEntityById(centerId);
  const UnitTest test = findUnitTest(unitType);
  std::vector<std::uint64_t> ids;
  // Every entity that counts as a unit has metadata.
  for (const qsf::Component* component :
       center ? query.getInstancesInCircleById(qsf::MetadataComponent::COMPONENT_ID,
                                               qsf::EntityHelper(*center).getPosition(), range)
              : query.getAllInstancesById(qsf::MetadataComponent::COMPONENT_ID))
    if (passes(test, &component->getEntity(), unitType)) ids.push_back(component->getEntityId());
  return ids;
}

std::span<const std::string_view> unitTypeWords() { return wordsOf<UNIT_TYPES>(); }

}
