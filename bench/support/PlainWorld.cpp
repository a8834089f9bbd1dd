#include "bench/support/PlainWorld.h"

#include "em5/component/PersonComponent.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"
#include "qsf/physics/BulletCollisionComponent.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tidemark::bench {

namespace {

/// How many places lie in squares, by a table of sums: never fewer than lie in the circle inside.
class PlaceCounts {
public:
  PlaceCounts(const std::vector<glm::vec3>& places, float range) : mWidth(range / CELLS_OF_RANGE) {
    glm::vec2 first(INFINITY), last(-INFINITY);
    for (const glm::vec3& place : places) {
      first = glm::min(first, {place.x, place.z});
      last = glm::max(last, {place.x, place.z});
    }
    mFirst = first;
    mSize = places.empty() ? glm::ivec2(1) : cellOf({last.x, 0, last.y}) + 1;
    mSums.assign(static_cast<std::size_t>(mSize.x + 1) * static_cast<std::size_t>(mSize.y + 1), 0);
    for (const glm::vec3& place : places)
      ++sum(cellOf(place) + 1);
    for (int z = 1; z <= mSize.y; ++z)
      for (int x = 1; x <= mSize.x; ++x)
        sum({x, z}) += sum({x - 1, z}) + sum({x, z - 1}) - sum({x - 1, z - 1});
  }
  std::size_t countAround(const glm::vec3& place) {
    const glm::ivec2 cell = cellOf(place);
    const glm::ivec2 from = glm::max(cell - CELLS_OF_RANGE, 0), to = glm::min(cell + CELLS_OF_RANGE + 1, mSize);
    return sum(to) - sum({from.x, to.y}) - sum({to.x, from.y}) + sum(from);
  }

private:
  static constexpr int CELLS_OF_RANGE = 8;
  glm::ivec2 cellOf(const glm::vec3& place) const { return (glm::vec2(place.x, place.z) - mFirst) / mWidth; }
  std::uint32_t& sum(const glm::ivec2& cell) {
    return mSums[static_cast<std::size_t>(cell.y) * static_cast<std::size_t>(mSize.x + 1) +
                 static_cast<std::size_t>(cell.x)];
  }

  float mWidth;
  glm::vec2 mFirst{0};
  glm::ivec2 mSize{1};
  std::vector<std::uint32_t> mSums; ///< of all cells that lie before, in both directions
};

}

PlainWorld::PlainWorld(const qsf::Map& map, std::uint64_t center, std::uint64_t area, Ids near, Ids all)
    : mNear(std::move(near)), mAll(std::move(all)) {
  for (const qsf::Entity* entity : map.getEntities()) {
    const auto* transform = entity->getComponent<qsf::TransformComponent>();
    const auto* metadata = entity->getComponent<qsf::MetadataComponent>();
    if (!transform || !metadata) continue;
    Unit unit;
    unit.id = entity->getId();
    unit.position = transform->getPosition();
    unit.prefab = metadata->getBasePrefab().getHash();
    unit.isPerson = entity->getComponent<em5::PersonComponent>() != nullptr;
    if (const auto* box = entity->getComponent<qsf::BulletCollisionComponent>()) {
      unit.half = box->getSize() / 2.0f;
      unit.offset = box->getOffset().y;
    }
    mIndices[unit.id] = mUnits.size();
    mCells[cellOf(unit.position)].push_back(unit.id);
    mUnits.push_back(unit);
  }
  mCenter = *find(center);
  mArea = *find(area);
  for (const std::uint64_t id : mNear)
    mFound.push_back(*find(id));
  mFound.push_back(mCenter);
  mFound.push_back(mArea);
}

const PlainWorld::Unit* PlainWorld::find(std::uint64_t id) const {
  const auto found = mIndices.find(id);
  return found == mIndices.end() ? nullptr : &mUnits[found->second];
}

std::uint64_t PlainWorld::cellOf(const glm::vec3& position) {
  const auto x = static_cast<std::int32_t>(std::floor(position.x / 32));
  const auto z = static_cast<std::int32_t>(std::floor(position.z / 32));
  return static_cast<std::uint64_t>(x) << 32 | static_cast<std::uint32_t>(z);
}

bool PlainWorld::isInArea(const Unit& unit) const {
  const glm::vec3 way = glm::abs(unit.position + glm::vec3(0, unit.offset, 0) - mArea.position);
  const glm::vec3 reach = unit.half + mArea.half;
  return way.x <= reach.x && way.y <= reach.y && way.z <= reach.z;
}

void PlainWorld::findInCircle(float radius) {
  out.clear();
  for (const Unit& unit : mFound)
    if (distance(unit) <= radius) out.push_back(unit.id);
}

void PlainWorld::hitByRay(const glm::vec3& from, const glm::vec3& direction) {
  out.clear();
  const Unit& unit = mFound[2];
  const glm::vec3 middle = unit.position + glm::vec3(0, unit.offset, 0) - from;
  const glm::vec3 first = (middle - unit.half) / direction;
  const glm::vec3 second = (middle + unit.half) / direction;
  const glm::vec3 enter = glm::min(first, second);
  const glm::vec3 leave = glm::max(first, second);
  if (std::max({enter.x, enter.y, enter.z}) <= std::min({leave.x, leave.y, leave.z})) out.push_back(unit.id);
}

void PlainWorld::findPrefabInCircle(float radius) {
  out.clear();
  const std::uint32_t prefab = mFound.front().prefab;
  for (const Unit& unit : mFound)
    if (unit.prefab == prefab && distance(unit) <= radius) out.push_back(unit.id);
}

void PlainWorld::findPersonsInArea() {
  out.clear();
  for (const Unit& unit : mFound)
    if (isInArea(unit) && unit.isPerson) out.push_back(unit.id);
}

void PlainWorld::findInArea(const Ids& list) {
  out.clear();
  for (const Unit& unit : mFound)
    if (isInArea(unit) && std::binary_search(list.begin(), list.end(), unit.id)) out.push_back(unit.id);
}

void PlainWorld::findCloser(const Ids& list, float limit) {
  out.clear();
  for (const std::uint64_t id : list)
    if (const Unit* unit = find(id); unit && distance(*unit) < limit) out.push_back(id);
}

void PlainWorld::findFarther(const Ids& list, float limit) {
  out.clear();
  for (const std::uint64_t id : list)
    if (const Unit* unit = find(id); unit && distance(*unit) > limit) out.push_back(id);
}

void PlainWorld::findPersons(const Ids& list) {
  out.clear();
  for (const std::uint64_t id : list)
    if (const Unit* unit = find(id); unit && unit->isPerson) out.push_back(id);
}

void PlainWorld::findKnown(const Ids& list) {
  out.clear();
  for (const std::uint64_t id : list)
    if (find(id)) out.push_back(id);
}

void PlainWorld::pickClosestTo(const glm::vec3& center, const Ids& list, std::size_t number) {
  std::vector<std::pair<float, std::uint64_t>> places;
  places.reserve(list.size());
  for (const std::uint64_t id : list)
    if (const Unit* unit = find(id)) places.emplace_back(glm::length(unit->position - center), id);
  number = std::min(number, places.size());
  const auto end = places.begin() + static_cast<std::ptrdiff_t>(number);
  std::partial_sort(places.begin(), end, places.end());
  out.clear();
  for (auto place = places.begin(); place != end; ++place)
    out.push_back(place->second);
}

void PlainWorld::drawPersons(std::size_t number, float radius) {
  Ids candidates;
  for (const Unit& unit : mFound)
    if (unit.isPerson && distance(unit) <= radius) candidates.push_back(unit.id);
  out.clear();
  while (out.size() < number && !candidates.empty()) {
    const std::size_t index = draw() % candidates.size();
    out.push_back(candidates[index]);
    candidates[index] = candidates.back();
    candidates.pop_back();
  }
}

void PlainWorld::pickCluster(const Ids& list, std::size_t number, float range) {
  std::vector<glm::vec3> places;
  places.reserve(list.size());
  for (const std::uint64_t id : list)
    places.push_back(find(id)->position);
  PlaceCounts counts(places, range);
  std::vector<std::size_t> seeds(list.size());
  std::iota(seeds.begin(), seeds.end(), std::size_t{0});
  for (; !seeds.empty(); seeds.pop_back()) {
    std::swap(seeds[draw() % seeds.size()], seeds.back());
    const std::size_t seed = seeds.back();
    if (counts.countAround(places[seed]) < number) continue; // hardly any is looked at more closely
    out.assign(1, list[seed]);
    for (std::size_t i = 0; i < list.size() && out.size() < number; ++i)
      if (i != seed && glm::dot(places[i] - places[seed], places[i] - places[seed]) < range * range)
        out.push_back(list[i]);
    if (out.size() == number) return;
  }
  pickClosestTo(places[draw() % places.size()], list, number);
}

void PlainWorld::addAll(const Ids& list) {
  out.clear();
  for (const std::uint64_t id : list)
    out.push_back(id);
}

void PlainWorld::listAll() {
  out.clear();
  for (const Unit& unit : mUnits)
    if (unit.half.x > 0) out.push_back(unit.id);
}

void PlainWorld::move(Unit& unit, const glm::vec3& position) {
  Ids& old = mCells[cellOf(unit.position)];
  std::erase(old, unit.id);
  unit.position = position;
  mCells[cellOf(position)].push_back(unit.id);
}

void PlainWorld::moveThereAndBack(std::uint64_t id) {
  Unit& unit = mUnits[mIndices.find(id)->second];
  move(unit, {300, 20, 300});
  move(unit, {500, 20, -400});
  out = {id};
}

void PlainWorld::makeAndDestroy(std::uint64_t id) {
  constexpr std::uint32_t NUMBER_OF_PARTS = 8; // as many as a civilian has
  auto made = std::make_unique<MadeUnit>();
  made->unit.id = id;
  made->unit.position = {-400, 0, -404};
  for (std::uint32_t i = 0; i < NUMBER_OF_PARTS; ++i) {
    auto part = std::make_unique<Part>();
    part->componentClass = i;
    mParts[i][id] = part.get();
    made->parts.push_back(std::move(part));
  }
  mCells[cellOf(made->unit.position)].push_back(id);
  mMade[id] = std::move(made);
  out = {id};

  const std::unique_ptr<MadeUnit> taken = std::move(mMade.find(id)->second);
  mMade.erase(id);
  std::erase(mCells[cellOf(taken->unit.position)], id);
  for (const auto& part : taken->parts)
    mParts[part->componentClass].erase(id);
}

}
