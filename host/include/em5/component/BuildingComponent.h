#pragma once
#include "qsf/component/Component.h"
#include <vector>

namespace em5 {

/// A building. Knows the entities that belong to it, and those that light it. Properties "EntityIds", "Lights".
class QSF_API BuildingComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::BuildingComponent"};
  explicit BuildingComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::vector<std::uint64_t>& getEntityIds() const { return mEntityIds; }
  void setEntityIds(const std::vector<std::uint64_t>& ids) { mEntityIds = ids; }
  const std::vector<std::uint64_t>& getLights() const { return mLights; }

private:
  std::vector<std::uint64_t> mEntityIds;
  std::vector<std::uint64_t> mLights;
};

}
CAMP_TYPE_NONCOPYABLE(em5::BuildingComponent)
