#pragma once
#include "qsf/base/StringHash.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qsf {

class Entity;
class Map;

/// A named part of a map's entities that comes and goes as a whole. Owned by its map.
class QSF_API Layer {
public:
  Layer(std::uint32_t id, std::string name);
  ~Layer();
  std::uint32_t getId() const { return mId; }
  const std::string& getName() const { return mName; }
  bool isActive() const { return mActive; }

private:
  friend class LayerManager;
  friend class Map;
  struct Resting;
  std::uint32_t mId;
  std::string mName;
  bool mActive = true;
  std::vector<Resting> mResting; // entities of the inactive layer, off the map
};

/// The layers of the main map. The base layer has id 0, the name "Base" and is always active. Owned by Qsf.
class QSF_API LayerManager {
public:
  Layer& getBaseLayer() const;
  /// Null if there is none.
  Layer* getLayerById(std::uint32_t id) const;
  /// By the hash of its name; null if there is none.
  Layer* getLayerByName(StringHash name) const;
  /// All layers by ascending id, the base layer first.
  std::vector<Layer*> getLayers() const;
  /// The layer that an entity belongs to, which may rest with it; null if there is no such entity.
  Layer* getLayerOfEntity(std::uint64_t id) const;
  /// A new active layer; null if the name is taken or empty.
  Layer* createLayer(const std::string& name);

  /// Puts the layer's entities back on the map, with their state and their links.
  void activateLayer(Layer& layer);
  /// Takes the layer's entities off the map: they are shut down and nothing finds them. The base layer stays active.
  /// `mode` is passed by the game's own callers and has no influence.
  void deactivateLayer(Layer& layer, int mode = 0);
  /// Destroys an entity that rests with its inactive layer. Any other id does nothing.
  void dropRestingEntity(std::uint64_t id);

private:
  friend class MapReader;
  static void deactivate(Map& map, Layer& layer);
};

}
