#pragma once
#include "qsf/base/JsonFile.h"
#include "qsf/map/Map.h"

namespace qsf {

/// Fills an empty map from its file. Throws LoadError at the first fault; the map is then to be cleared.
class MapReader {
public:
  explicit MapReader(Map& map) : mMap(map) {}
  void read(const std::string& localAssetName);

private:
  void readBounds(const JsonPlace& root);
  void readGround(const JsonPlace& root);
  void readLayers(const JsonPlace& root);
  void createStandardEntities();
  Entity& createEntity(const JsonPlace& place);
  Entity& createFromPrefab(const JsonPlace& place, std::uint64_t id);
  void readPlacement(const JsonPlace& place, Entity& entity);
  void readEntities(const JsonPlace& entities);
  void deactivateLayers(const JsonPlace& root);

  Map& mMap;
};

}
