#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

namespace qsf::game {

/// Ties a bone of its entity to a bone of the entity that it is linked below. It looks for that parent when it starts
/// and keeps to it until it is started anew, so whoever links the entity elsewhere restarts it. Properties "OwnBone"
/// and "ParentBone" (names), and "BoundParentId" to read.
class QSF_API BoneToBoneLinkComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::BoneToBoneLinkComponent"};
  explicit BoneToBoneLinkComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::string& getOwnBone() const { return mOwnBone; }
  void setOwnBone(const std::string& name) { mOwnBone = name; }
  const std::string& getParentBone() const { return mParentBone; }
  void setParentBone(const std::string& name) { mParentBone = name; }
  /// Uninitialised while it doesn't run, and if the entity was unlinked at its start.
  std::uint64_t getBoundParentId() const { return mBoundParentId; }

protected:
  bool onStartup() override;
  void onShutdown() override { mBoundParentId = UNINITIALIZED_ID; }

private:
  std::string mOwnBone;
  std::string mParentBone;
  std::uint64_t mBoundParentId = UNINITIALIZED_ID;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::BoneToBoneLinkComponent)
