#pragma once
#include "qsf/component/Component.h"

#include <glm/glm.hpp>

#include <unordered_map>
#include <vector>

namespace qsf {

class ComponentIndex;

/// Finds the components of a class within a circle: one hash grid for each class that was ever asked for, made at the
/// first question and kept up to date from then on. A circle costs the cells that it touches and what stands in them;
/// a move, an addition and a removal cost the same however many share a cell.
class SpatialIndex {
public:
  void add(Component& component);
  void remove(const Component& component);
  void move(const Entity& entity);
  void clear() { mGrids.clear(); }
  /// Those within the circle (x and z, border included) by ascending entity id. `all` fills a grid that is new.
  std::vector<Component*> find(StringHash componentId, ComponentIndex& all, const glm::vec3& center, float radius);

private:
  /// What a question reads, side by side: components and their transforms lie scattered.
  struct Entry {
    std::uint64_t entityId;
    Component* component;
    float x, z;
  };
  struct Place {
    std::uint64_t cell;
    std::size_t index; ///< in the cell
  };
  struct Grid {
    std::unordered_map<std::uint64_t, std::vector<Entry>> cells; ///< none is empty
    std::unordered_map<const Component*, Place> places;
    void insert(Component& component, const glm::vec3& position);
    void erase(const Component& component);
    void move(Component& component, const glm::vec3& position);
    std::vector<Entry> find(const glm::vec3& center, float radius) const;
  };
  Grid& getGrid(StringHash componentId, ComponentIndex& all);
  std::unordered_map<StringHash, Grid> mGrids;
};

}
