#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace script {

/// Makes its entity a house that can be cut open: lists the entities of up to four floors, its door and its parking
/// site. Properties "Number of Layers", "Next Floor", "Layer 1" to "Layer 4", "OH Door", "DefaultLayer", "StartLayer",
/// "OrderInfo".
class OpenHouseComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"script::OpenHouseComponent"};
  explicit OpenHouseComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Whether the id is that of the house itself or stands in one of its lists; nobody looks for the id's entity.
  bool holdsEntity(std::uint64_t entityId) const;

private:
  using EntityIds = std::vector<std::uint64_t>;

  int mNumberOfLayers = 0;
  int mNextFloor = 0;
  EntityIds mLayer1, mLayer2, mLayer3, mLayer4;
  std::uint64_t mDoor = qsf::UNINITIALIZED_ID;
  EntityIds mDefaultLayer;
  int mStartLayer = 0;
  std::string mOrderInfo;
};

}
CAMP_TYPE_NONCOPYABLE(script::OpenHouseComponent)
