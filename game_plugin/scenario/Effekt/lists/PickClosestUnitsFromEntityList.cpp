#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ClosestSearch.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

namespace script {

struct PickClosestUnitsFromEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A MaxNumber that is negative or has a fraction is never met, so that all units are picked.",
      "A unit that is 999999 or more away is never picked.",
  };

  Argument entityList;
  Argument newEntityList;
  bool clearNewList = true;
  Argument maximumNumber;
  Argument centerUnit;
  bool addCenterToNewList = false; ///< for records made by tools; no parameter of a script sets it
};

static void read(PickClosestUnitsFromEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "List from which units are picked");
  effect.newEntityList = in.listOut(2, "no_list", "NewEntityList", "List that gets the picked units; may be the same");
  effect.clearNewList = in.flag(3, true, "ClearNewList", "Empties the new list before units are added");
  effect.maximumNumber = in.number(4, "1", "MaxNumber", "How many units shall be picked");
  effect.centerUnit = in.list(5, "empty_list", "Center Unit", "Unit to which the picked ones are closest");
}

static void run(const PickClosestUnitsFromEntityListEffect& effect, ScenarioHandler& handler) {
  const EntityIds centers = handler.ResolveEntityList(effect.centerUnit);
  const qsf::Entity* center = centers.empty() ? nullptr : findEntity(centers.front());
  if (!center) return;
  std::vector<std::uint64_t> candidates = existingIds(handler, effect.entityList);
  std::erase(candidates, center->getId());
  if (effect.clearNewList) handler.ClearEntityList(effect.newEntityList);
  if (effect.addCenterToNewList) handler.AddToEntityList(effect.newEntityList, center->getId());
  std::vector<std::uint64_t> picked;
  pickClosest(handler, candidates, *center, effect.maximumNumber, picked);
  for (const std::uint64_t id : picked)
    handler.AddToEntityList(effect.newEntityList, id);
}

EFFECT(PickClosestUnitsFromEntityList, "EntityLists",
       "Picks the units of a list that are closest to a unit, the closest first. The unit itself is not picked")

}
