#include "qsf/map/SpatialIndex.h"

#include "qsf/component/TransformComponent.h"
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
  return (static_cast<std::uint64_t>(x) << 32) ^ (static_cast<std::uint64_t>(z) & 0xFFFFFFFFu);
}

std::uint64_t cellOf(const glm::vec3& position) {
  return cellKey(cellCoordinate(position.x), cellCoordinate(position.z));
}

const glm::vec3* positionOf(const Component& component) {
  const auto* transform = component.getPrototype().getComponent<TransformComponent>();
  return transform ? &transform->getPosition() : nullptr;
}

bool isWithin(const Component& component, const glm::vec3& center, double radius) {
  const glm::vec3* position = positionOf(component);
  if (!position) return false;
  const double x = static_cast<double>(position->x) - static_cast<double>(center.x);
  const double z = static_cast<double>(position->z) - static_cast<double>(center.z);
  return x * x + z * z <= radius * radius;
}

}

void SpatialIndex::Grid::insert(Component& component, std::uint64_t cell) {
  cells[cell].push_back(&component);
  places[&component] = cell;
}

void SpatialIndex::Grid::erase(const Component& component) {
  const auto place = places.find(&component);
  if (place == places.end()) return;
  std::vector<Component*>& cell = cells[place->second];
  *std::find(cell.begin(), cell.end(), &component) = cell.back();
  cell.pop_back();
  if (cell.empty()) cells.erase(place->second);
  places.erase(place);
}

void SpatialIndex::add(Component& component) {
  if (mGrids.empty()) return;
  if (component.getId() == TransformComponent::COMPONENT_ID) // what came before its transform has a place from now on
    for (Component* other : component.getPrototype().getComponents())
      if (other != &component) add(*other);
  const auto grid = mGrids.find(component.getId());
  const glm::vec3* position = positionOf(component);
  if (grid != mGrids.end() && position && !grid->second.places.contains(&component))
    grid->second.insert(component, cellOf(*position));
}

void SpatialIndex::remove(const Component& component) {
  if (component.getId() == TransformComponent::COMPONENT_ID)
    for (const Component* other : component.getPrototype().getComponents())
      if (other != &component) remove(*other);
  if (const auto grid = mGrids.find(component.getId()); grid != mGrids.end()) grid->second.erase(component);
}

void SpatialIndex::move(const Entity& entity) {
  for (auto& [componentId, grid] : mGrids) {
    Component* component = entity.getComponentById(componentId);
    const auto place = component ? grid.places.find(component) : grid.places.end();
    if (place == grid.places.end()) continue;
    const std::uint64_t cell = cellOf(*positionOf(*component));
    if (cell == place->second) continue;
    grid.erase(*component);
    grid.insert(*component, cell);
  }
}

SpatialIndex::Grid& SpatialIndex::getGrid(StringHash componentId, const std::vector<Component*>& all) {
  const auto [entry, isNew] = mGrids.try_emplace(componentId);
  if (isNew)
    for (Component* component : all)
      if (const glm::vec3* position = positionOf(*component)) entry->second.insert(*component, cellOf(*position));
  return entry->second;
}

std::vector<Component*> SpatialIndex::find(StringHash componentId, const std::vector<Component*>& all,
                                           const glm::vec3& center, float radius) {
  std::vector<Component*> found;
  const Grid& grid = getGrid(componentId, all);
  const auto collect = [&](const std::vector<Component*>& cell) {
    for (Component* component : cell)
      if (isWithin(*component, center, radius)) found.push_back(component);
  };
  const std::int64_t minimumX = cellCoordinate(static_cast<double>(center.x) - radius);
  const std::int64_t maximumX = cellCoordinate(static_cast<double>(center.x) + radius);
  const std::int64_t minimumZ = cellCoordinate(static_cast<double>(center.z) - radius);
  const std::int64_t maximumZ = cellCoordinate(static_cast<double>(center.z) + radius);
  const auto touched = static_cast<double>(maximumX - minimumX + 1) * static_cast<double>(maximumZ - minimumZ + 1);
  if (touched > static_cast<double>(grid.cells.size())) {
    for (const auto& [key, cell] : grid.cells)
      collect(cell);
    return found;
  }
  for (std::int64_t x = minimumX; x <= maximumX; ++x)
    for (std::int64_t z = minimumZ; z <= maximumZ; ++z)
      if (const auto cell = grid.cells.find(cellKey(x, z)); cell != grid.cells.end()) collect(cell->second);
  return found;
}

}
