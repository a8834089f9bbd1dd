#pragma once
#include "qsf/component/Component.h"

#include <glm/glm.hpp>

#include <unordered_map>
#include <vector>

namespace qsf {

/// Finds the components of a class within a circle: one hash grid for each class that was ever asked for, made at the
/// first question and kept up to date from then on. A circle costs the cells that it touches and what stands in them.
class SpatialIndex {
public:
  void add(Component& component);
  void remove(const Component& component);
  void move(const Entity& entity);
  void clear() { mGrids.clear(); }
  /// Those within the circle (x and z, border included), in no order. `all` are the class's components.
  std::vector<Component*> find(StringHash componentId, const std::vector<Component*>& all, const glm::vec3& center,
                               float radius);

private:
  struct Grid {
    std::unordered_map<std::uint64_t, std::vector<Component*>> cells;
    std::unordered_map<const Component*, std::uint64_t> places;
    void insert(Component& component, std::uint64_t cell);
    void erase(const Component& component);
  };
  Grid& getGrid(StringHash componentId, const std::vector<Component*>& all);
  std::unordered_map<StringHash, Grid> mGrids;
};

}
