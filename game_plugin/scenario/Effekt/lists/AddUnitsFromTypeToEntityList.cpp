#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/UnitTypes.h"

#include <algorithm>

namespace script {

struct AddUnitsFromTypeToEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The default of UnitType is no unit type, as it lacks the final s: nothing is added, and each unit that is "
      "looked at costs a line in the log.",
      "CenterUnit is a plain id: it takes neither a list nor a variable.",
  };

  Argument entityListOut;
  Argument unitType;
  bool deleteOldEntities = false;
  Argument maximumNumber;
  std::uint64_t centerUnit = ~std::uint64_t{0};
  Argument radius;
};

static void read(AddUnitsFromTypeToEntityListEffect& effect, ParameterReader& in) {
  effect.entityListOut = in.listOut(1, "no_list", "EntityList[out]", "List that gets the units");
  effect.unitType = in.words(2, "PlayerVehicle", "UnitType",
                             "PlayerVehicles, PlayerPersons, Civilian, Tree, Building, ObjectBurning, "
                             "ObjectBurnable, Gangster or InjuredPersons",
                             unitTypeWords());
  effect.deleteOldEntities = in.flag(3, false, "Delete old entities", "Empties the list before units are added");
  effect.maximumNumber = in.number(4, "1", "MaxNumber", "How many units shall be added, chosen at random");
  effect.centerUnit = in.id(5, ~std::uint64_t{0}, "CenterUnit",
                            "Id of the entity round which units are looked for; without such an entity "
                            "the whole map counts");
  effect.radius = in.number(6, "200", "Radius", "How far from it units may be");
}

static void run(const AddUnitsFromTypeToEntityListEffect& effect, ScenarioHandler& handler) {
  if (effect.deleteOldEntities) handler.ClearEntityList(effect.entityListOut);
  const float radius = handler.ResolveFloat(effect.radius);
  const int number = truncateToInt(handler.ResolveFloat(effect.maximumNumber));
  const std::string unitType = handler.ResolveString(effect.unitType);
  handler.AddToEntityListByTypeInArea(effect.entityListOut, unitType, static_cast<std::uint32_t>(std::max(number, 0)),
                                      effect.centerUnit, radius);
}

EFFECT(AddUnitsFromTypeToEntityList, "EntityLists", "Adds random units of a type, of an area or of the whole map")

}
