#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ClosestSearch.h"
#include "game_plugin/scenario/stores/RemainingIds.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/PlaceTree.h"

#include "qsf/base/Random.h"

#include <cmath>
#include <optional>

namespace script {

struct PickUnitsFromEntityListEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "If as many units are wanted as there are, or more, all are picked, whatever the range.",
      "A MaxNumber that is 0, negative or has a fraction is never met, so that all units are picked, after the message "
      "that the range is too small.",
  };

  Argument entityList;
  Argument newEntityList;
  bool clearNewListBefore = true;
  Argument maximumNumber;
  Argument range;
};

static void read(PickUnitsFromEntityListEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "List from which units are picked");
  effect.newEntityList = in.listOut(2, "no_list", "NewEntityList", "List that gets the picked units; may be the same");
  effect.clearNewListBefore = in.flag(3, true, "ClearNewListBefore", "Empties the new list before units are added");
  effect.maximumNumber = in.number(4, "1", "MaxNumber", "How many units shall be picked");
  effect.range = in.number(5, "9999999", "Range",
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

/// Tells of most seeds that are in vain, without a walk over all units: with thousands of them, and a range in which
/// too few stand, walking for each one would take minutes.
class SeedFilter {
public:
  SeedFilter(const std::vector<glm::vec3>& places, float range, float wanted)
      : mRange(range), mWanted(wanted), mCanBeReached(wanted >= 2 && wanted == std::floor(wanted)) {
    if (mCanBeReached) mTree.emplace(places);
  }
  bool isInVain(const glm::vec3& place) const {
    if (!mCanBeReached) return true; // a fraction or a negative number is no cluster's size
    // The seed itself is always in the cluster, and counted here, too, if anything at its place would be.
    const std::size_t own = mRange > 0 ? 1 : 0;
    const std::size_t found = mTree->countCloser(place, mRange, static_cast<std::size_t>(mWanted) + own);
    return static_cast<float>(1 + std::max(found, own) - own) < mWanted;
  }

private:
  float mRange, mWanted;
  bool mCanBeReached;
  std::optional<PlaceTree> mTree;
};

/// A cluster round the first seed, drawn at random, that has one. Empty if none has.
Ids findCluster(const PickUnitsFromEntityListEffect& effect, ScenarioHandler& handler, const Ids& all) {
  const std::vector<glm::vec3> places = placesOf(all);
  RemainingIds seeds(all);
  std::optional<SeedFilter> filter; // made when the first seed was in vain, which it seldom is
  while (seeds.size() > 0) {
    const std::uint64_t seed = seeds.take(drawIndex(seeds.size()));
    if (filter && filter->isInVain(positionOf(*findEntity(seed)))) continue;
    Ids cluster = gatherCluster(effect, handler, all, places, seed);
    if (!cluster.empty()) return cluster;
    if (!filter && all.size() > 1)
      filter.emplace(places, handler.ResolveFloat(effect.range), handler.ResolveFloat(effect.maximumNumber));
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
