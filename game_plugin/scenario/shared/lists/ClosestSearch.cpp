#include "game_plugin/scenario/shared/lists/ClosestSearch.h"

#include <algorithm>
#include <unordered_set>

namespace script {

namespace {

constexpr float FARTHEST = 999999.0f;

struct Candidate {
  std::uint64_t id;
  float distance;
  std::size_t place; ///< in the list
};

/// Whether a candidate comes behind another. Of equally close ones the first of the list comes first.
bool isBehind(const Candidate& a, const Candidate& b) {
  return a.distance != b.distance ? a.distance > b.distance : a.place > b.place;
}

std::vector<Candidate> measure(std::span<const std::uint64_t> ids, const qsf::Entity& reference) {
  std::vector<Candidate> candidates;
  candidates.reserve(ids.size());
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const qsf::Entity* entity = findEntity(ids[i]);
    const float distance = entity ? distanceBetween(*entity, reference) : FARTHEST;
    if (distance < FARTHEST) candidates.push_back({ids[i], distance, i});
  }
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
  // A heap gives the closest one after another; mostly few of many are wanted.
  std::vector<Candidate> heap = measure(candidates, reference);
  std::make_heap(heap.begin(), heap.end(), isBehind);
  std::unordered_set<std::uint64_t> taken;
  for (auto end = heap.end(); end != heap.begin(); --end) {
    if (static_cast<float>(picked.size()) == handler.ResolveFloat(maximumNumber)) return;
    std::pop_heap(heap.begin(), end, isBehind);
    const std::uint64_t closest = std::prev(end)->id;
    if (taken.insert(closest).second) picked.push_back(closest);
  }
}

}
