#pragma once
#include "qsf/map/ComponentIndex.h"
#include "qsf/map/Layer.h"
#include "qsf/map/Map.h"
#include "qsf/map/SpatialIndex.h"

namespace qsf {

/// The height of the ground: the same everywhere, or one height up to a line of x and another from there on.
struct Ground {
  float low = 0, high = 0;
  float stepAt = 0;
  float getHeight(float x) const { return x < stepAt ? low : high; }
};

/// A layer's entity while the layer is inactive, with the links to take up again.
struct Layer::Resting {
  std::unique_ptr<Entity> entity;
  std::uint64_t parentId;
  std::vector<std::uint64_t> childIds;
};

/// What the map keeps beside its entities.
struct Map::Internals {
  ComponentIndex components;
  SpatialIndex spatial;
  Ground ground;
  std::vector<std::unique_ptr<Layer>> layers; // by id, the base layer first
  std::vector<std::unique_ptr<Component>> destroyedComponents;
  std::vector<std::shared_ptr<void>> kept; // until the frame's end

  Internals() { reset(); }
  void reset();
  void addComponent(Component& component);
  void removeComponent(Component& component);
  void onEntityMoved(Entity& entity);
};

}
