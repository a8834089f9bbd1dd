#include "qsf/map/SpatialIndex.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/map/ComponentIndex.h"
#include "qsf/map/Entity.h"

#include <cmath>

namespace qsf {

namespace {

constexpr double CELL_SIZE = 32.0;        // a house and its surroundings
constexpr double FARTHEST_CELL = 1 << 20; // what is farther out shares the border cells

/// Numbers beyond the border, infinite ones and no-numbers (at the low end) included.
std::int64_t cellCoordinate(double coordinate) {
  const double cell = std::floor(coordinate / CELL_SIZE);
  return static_cast<std::int64_t>(cell > -FARTHEST_CELL ? std::min(cell, FARTHEST_CELL) : -FARTHEST_CELL);
}

std::uint64_t cellKey(std::int64_t x, std::int64_t z) {
  return (static_cast<std::uint64_t>(x) << 32) | (static_cast<std::uint64_t>(z) & 0xFFFFFFFFu);
}

std::uint64_t cellOf(const glm::vec3& position) {
  return cellKey(cellCoordinate(position.x), cellCoordinate(position.z));
}

/// The cells that a circle's square touches.
struct CellRange {
  std::int64_t minimumX, maximumX, minimumZ, maximumZ;

  CellRange(const glm::vec3& center, double radius)
      : minimumX(cellCoordinate(center.x - radius)), maximumX(cellCoordinate(center.x + radius)),
        minimumZ(cellCoordinate(center.z - radius)), maximumZ(cellCoordinate(center.z + radius)) {}

  double count() const {
    return static_cast<double>(maximumX - minimumX + 1) * static_cast<double>(maximumZ - minimumZ + 1);
  }
  bool holds(std::uint64_t key) const {
    const auto x = static_cast<std::int32_t>(key >> 32);
    const auto z = static_cast<std::int32_t>(key & 0xFFFFFFFFu);
    return x >= minimumX && x <= maximumX && z >= minimumZ && z <= maximumZ;
  }
};

const glm::vec3* positionOf(const Component& component) {
  const auto* transform = component.getPrototype().getComponent<TransformComponent>();
  return transform ? &transform->getPosition() : nullptr;
}

}

void SpatialIndex::Grid::insert(Component& component, const glm::vec3& position) {
  const std::uint64_t key = cellOf(position);
  std::vector<Entry>& cell = cells[key];
  places[&component] = {key, cell.size()};
  cell.push_back({component.getEntityId(), &component, position.x, position.z});
}

void SpatialIndex::Grid::erase(const Component& component) {
  const auto place = places.find(&component);
  if (place == places.end()) return;
  const auto [key, index] = place->second;
  const auto cell = cells.find(key);
  std::vector<Entry>& entries = cell->second;
  entries[index] = entries.back();
  places[entries[index].component].index = index;
  entries.pop_back();
  if (entries.empty()) cells.erase(cell);
  places.erase(&component);
}

void SpatialIndex::Grid::move(Component& component, const glm::vec3& position) {
  const auto place = places.find(&component);
  if (place == places.end()) return;
  if (place->second.cell == cellOf(position)) {
    Entry& entry = cells.find(place->second.cell)->second[place->second.index];
    entry.x = position.x;
    entry.z = position.z;
  } else {
    erase(component);
    insert(component, position);
  }
}

std::vector<SpatialIndex::Entry> SpatialIndex::Grid::find(const glm::vec3& center, float radius) const {
  std::vector<Entry> found;
  const double square = static_cast<double>(radius) * static_cast<double>(radius);
  const auto collect = [&](const std::vector<Entry>& cell) {
    for (const Entry& entry : cell) {
      const double x = static_cast<double>(entry.x) - static_cast<double>(center.x);
      const double z = static_cast<double>(entry.z) - static_cast<double>(center.z);
      if (x * x + z * z <= square) found.push_back(entry);
    }
  };
  const CellRange range(center, radius);
  if (range.count() > static_cast<double>(cells.size())) {
    for (const auto& [key, cell] : cells)
      if (range.holds(key)) collect(cell);
    return found;
  }
  for (std::int64_t x = range.minimumX; x <= range.maximumX; ++x)
    for (std::int64_t z = range.minimumZ; z <= range.maximumZ; ++z)
      if (const auto cell = cells.find(cellKey(x, z)); cell != cells.end()) collect(cell->second);
  return found;
}

void SpatialIndex::add(Component& component) {
  if (mGrids.empty()) return;
  if (component.getId() == TransformComponent::COMPONENT_ID) // what came before its transform has a place from now on
    for (Component* other : component.getPrototype().getComponents())
      if (other != &component) add(*other);
  const auto grid = mGrids.find(component.getId());
  const glm::vec3* position = positionOf(component);
  if (grid != mGrids.end() && position && !grid->second.places.contains(&component))
    grid->second.insert(component, *position);
}

void SpatialIndex::remove(const Component& component) {
  if (component.getId() == TransformComponent::COMPONENT_ID)
    for (const Component* other : component.getPrototype().getComponents())
      if (other != &component) remove(*other);
  if (const auto grid = mGrids.find(component.getId()); grid != mGrids.end()) grid->second.erase(component);
}

void SpatialIndex::move(const Entity& entity) {
  for (auto& [componentId, grid] : mGrids)
    if (Component* component = entity.getComponentById(componentId))
      if (const glm::vec3* position = positionOf(*component)) grid.move(*component, *position);
}

SpatialIndex::Grid& SpatialIndex::getGrid(StringHash componentId, ComponentIndex& all) {
  const auto [entry, isNew] = mGrids.try_emplace(componentId);
  if (isNew)
    for (Component* component : all.get(componentId))
      if (const glm::vec3* position = positionOf(*component)) entry->second.insert(*component, *position);
  return entry->second;
}

std::vector<Component*> SpatialIndex::find(StringHash componentId, ComponentIndex& all, const glm::vec3& center,
                                           float radius) {
  std::vector<Entry> entries = getGrid(componentId, all).find(center, radius);
  std::sort(entries.begin(), entries.end(),
            [](const Entry& left, const Entry& right) { return left.entityId < right.entityId; });
  std::vector<Component*> found;
  found.reserve(entries.size());
  for (const Entry& entry : entries)
    found.push_back(entry.component);
  return found;
}

}
