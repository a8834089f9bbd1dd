#pragma once
#include "qsf/prototype/Prototype.h"

namespace qsf {

class Map;

/// A prototype that stands on a map. Made and destroyed by the map.
class QSF_API Entity : public Prototype {
public:
  Entity(Map& map, std::uint64_t id) : Prototype(id), mMap(map) {}
  ~Entity() override;

  Map& getMap() const { return mMap; }
  Entity* findEntity() override { return this; }
  /// Whether it is drawn. The entity has a qsf::game::HiddenComponent from then on, which tells so.
  void setHidden(bool hidden);
  bool isHidden() const { return mHidden; }
  /// Layer that the entity belongs to; 0 is the base layer.
  std::uint32_t getLayerId() const { return mLayerId; }
  void setLayerId(std::uint32_t layerId) { mLayerId = layerId; }

protected:
  void onComponentAdded(Component& component) override;
  void onComponentRemoved(Component& component) override;
  bool isStarted() const override;
  void releaseComponent(std::unique_ptr<Component> component) override;

private:
  friend class Map;
  Map& mMap;
  std::uint32_t mLayerId = 0;
  bool mHidden = false;
  bool mOnMap = false; // not yet, while its layer rests, or no longer
};

}
