#pragma once
#include "qsf/map/Map.h"

namespace qsf {

/// Finds entities of a map. Results come by ascending id.
class QSF_API EntityMapQuery {
public:
  explicit EntityMapQuery(const Map& map) : mMap(map) {}
  /// Entities whose metadata component has exactly that name.
  std::vector<Entity*> getAllInstancesByName(const std::string& name) const;

private:
  const Map& mMap;
};

}
