#include "game_plugin/scenario/shared/ClosestSearch.h"

#include <algorithm>
#include <unordered_set>

namespace script {

namespace {

constexpr float FARTHEST = 999999.0f;

struct Candidate {
  std::uint64_t id;
  float distance;
};

/// Sorted once instead of searched anew for each pick; the order is the same.
std::vector<Candidate> sortByDistance(std::span<const std::uint64_t> ids, const qsf::Entity& reference) {
  std::vector<Candidate> candidates;
  std::unordered_set<std::uint64_t> seen;
  for (const std::uint64_t id : ids) {
    const qsf::Entity* entity = findEntity(id);
    if (!entity || !seen.insert(id).second) continue;
    const float distance = distanceBetween(*entity, reference);
    if (distance < FARTHEST) candidates.push_back({id, distance});
  }
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.distance < b.distance; });
  return candidates;
}

}

std::vector<std::uint64_t> existingIds(ScenarioHandler& handler, const Argument& list) {
  std::vector<std::uint64_t> ids;
  for (const std::uint64_t id : handler.ResolveEntityList(list))
    if (findEntity(id)) ids.push_back(id);
  return ids;
}

void pickClosest(ScenarioHandler& handler, std::span<const std::uint64_t> candidates, const qsf::Entity& reference,
                 const Argument& maximumNumber, std::vector<std::uint64_t>& picked) {
  for (const Candidate& candidate : sortByDistance(candidates, reference)) {
    if (static_cast<float>(picked.size()) == handler.ResolveFloat(maximumNumber)) return;
    picked.push_back(candidate.id);
  }
}

}
