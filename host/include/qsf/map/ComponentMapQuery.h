#pragma once
#include "qsf/map/Map.h"

#include <glm/glm.hpp>

namespace qsf {

/// Finds components of a map by class and place. Results come by ascending entity id.
class QSF_API ComponentMapQuery {
public:
  explicit ComponentMapQuery(const Map& map) : mMap(map) {}

  std::vector<Component*> getAllInstancesById(StringHash componentId) const;
  /// Components whose entity's position lies within the circle (x and z only, border included). A radius that isn't a
  /// number or is negative finds nothing. Costs what it finds, not what the map holds.
  std::vector<Component*> getInstancesInCircleById(StringHash componentId, const glm::vec3& center, float radius) const;

  template <class T> std::vector<T*> getAllInstances() const { return cast<T>(getAllInstancesById(T::COMPONENT_ID)); }
  template <class T> std::vector<T*> getInstancesInCircle(const glm::vec3& center, float radius) const {
    return cast<T>(getInstancesInCircleById(T::COMPONENT_ID, center, radius));
  }

private:
  template <class T> static std::vector<T*> cast(const std::vector<Component*>& components) {
    std::vector<T*> typed;
    typed.reserve(components.size());
    for (Component* component : components)
      typed.push_back(static_cast<T*>(component));
    return typed;
  }
  const Map& mMap;
};

}
