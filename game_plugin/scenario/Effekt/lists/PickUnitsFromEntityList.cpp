#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/ParameterReaders.h"
#include "game_plugin/scenario/shared/ClosestSearch.h"

#include "qsf/base/Random.h"

#include <cmath>

namespace script {

struct PickUnitsFromEntityListEffect : DefaultEffect {
  Argument entityList;
  Argument newEntityList;
  bool clearNewListBefore = true;
  Argument maximumNumber;
  Argument range;
};

static void read(PickUnitsFromEntityListEffect& effect, const Tokens& tokens) {
  effect.entityList = readStringParameter(tokens, 1, "no_list", "EntityList", "List from which units are picked");
  effect.newEntityList =
      readStringParameter(tokens, 2, "no_list", "NewEntityList", "List that gets the picked units; may be the same");
  effect.clearNewListBefore =
      readBoolParameter(tokens, 3, true, "ClearNewListBefore", "Empties the new list before units are added");
  effect.maximumNumber = readStringParameter(tokens, 4, "1", "MaxNumber", "How many units shall be picked");
  effect.range = readStringParameter(tokens, 5, "9999999", "Range",
                                     "All picked units are closer than this to one of them (100 are about 10 metres)");
}

namespace {

using Ids = std::vector<std::uint64_t>;

std::size_t drawIndex(std::size_t size) {
  return static_cast<std::size_t>(qsf::Random::getRandomInt(0, static_cast<int>(size) - 1));
}

void addAll(ScenarioHandler& handler, const Argument& list, const Ids& ids) {
  for (const std::uint64_t id : ids)
    handler.AddToEntityList(list, id);
}

/// Places of the ids, looked up once since each of them is compared with many.
std::vector<glm::vec3> placesOf(const Ids& ids) {
  std::vector<glm::vec3> places;
  places.reserve(ids.size());
  for (const std::uint64_t id : ids)
    places.push_back(positionOf(*findEntity(id)));
  return places;
}

/// The seed and the units within range of it, if exactly the wanted number comes together; otherwise empty.
Ids gatherCluster(const PickUnitsFromEntityListEffect& effect, ScenarioHandler& handler, const Ids& all,
                  const std::vector<glm::vec3>& places, std::uint64_t seed) {
  const glm::vec3 center = positionOf(*findEntity(seed));
  Ids cluster{seed};
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i] == seed) continue;
    const glm::vec3 way = places[i] - center;
    if (handler.ResolveFloat(effect.range) > std::sqrt(glm::dot(way, way))) cluster.push_back(all[i]);
    // Also after a unit out of range, so a lone seed is compared as well.
    if (static_cast<float>(cluster.size()) == handler.ResolveFloat(effect.maximumNumber)) return cluster;
  }
  return {};
}

/// A cluster round the first seed, drawn at random, that has one. Empty if none has.
Ids findCluster(const PickUnitsFromEntityListEffect& effect, ScenarioHandler& handler, const Ids& all) {
  const std::vector<glm::vec3> places = placesOf(all);
  Ids seeds = all;
  while (!seeds.empty()) {
    const std::size_t drawn = drawIndex(seeds.size());
    Ids cluster = gatherCluster(effect, handler, all, places, seeds[drawn]);
    if (!cluster.empty()) return cluster;
    seeds.erase(seeds.begin() + static_cast<std::ptrdiff_t>(drawn));
  }
  return {};
}

/// A random unit and those closest to it, whatever the range.
Ids pickRandomAndClosest(const PickUnitsFromEntityListEffect& effect, ScenarioHandler& handler, Ids all) {
  if (all.empty()) return {}; // a negative number wanted of nothing
  Ids picked{all[drawIndex(all.size())]};
  std::erase(all, picked.front());
  pickClosest(handler, all, *findEntity(picked.front()), effect.maximumNumber, picked);
  return picked;
}

}

static void run(const PickUnitsFromEntityListEffect& effect, ScenarioHandler& handler) {
  const Ids all = existingIds(handler, effect.entityList);
  if (effect.clearNewListBefore) handler.ClearEntityList(effect.newEntityList);
  const float wanted = handler.ResolveFloat(effect.maximumNumber);
  if (wanted >= static_cast<float>(all.size())) return addAll(handler, effect.newEntityList, all);
  if (wanted == 1.0f) return handler.AddToEntityList(effect.newEntityList, all[drawIndex(all.size())]);
  Ids picked = findCluster(effect, handler, all);
  if (picked.empty()) {
    logInfo("PickUnitsFromEntityList: Range is too small. Cant choose enough units. A random unit will be picked and "
            "the closest units will be added aswell");
    picked = pickRandomAndClosest(effect, handler, all);
  }
  addAll(handler, effect.newEntityList, picked);
}

EFFECT(PickUnitsFromEntityList, "EntityLists",
       "Picks units at random that stand close together. If the range is too small for so many, a random unit and the "
       "units closest to it are picked")

}
