#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <cstdint>
#include <vector>

namespace qsf {

/// Hangs an entity below another one, whose moves and turns it then follows. The parent gets a link component, too,
/// which knows its children. While linked, the local transform and the world transform always agree, whichever is set;
/// linking and unlinking leave the place in the world. Properties "ParentId", "LocalPosition", "LocalRotation".
class QSF_API LinkComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::LinkComponent"};
  explicit LinkComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Uninitialised while unlinked.
  std::uint64_t getParentId() const { return mParentId; }
  /// Links below that entity, leaving a former parent. The uninitialised id unlinks. The own id, an entity that is
  /// below this one and one that doesn't exist are refused with a warning; the link then stays as it was.
  void setParentId(std::uint64_t parentId);
  void unlinkFromParent();
  /// Kind of the link, 0 for a plain one; kept for those who ask.
  void setParentLinkType(int type) { mParentLinkType = type; }
  int getParentLinkType() const { return mParentLinkType; }

  /// Null while unlinked.
  LinkComponent* getParentLink() const { return mParent; }
  /// Direct children in the order in which they were linked. Changes as children come and go.
  const std::vector<LinkComponent*>& getChildLinks() const;

  /// Relative to the parent. While unlinked, the value is kept and moves nothing.
  const glm::vec3& getLocalPosition() const { return mLocalPosition; }
  const glm::quat& getLocalRotation() const { return mLocalRotation; }
  void setLocalPosition(const glm::vec3& position);
  void setLocalRotation(const glm::quat& rotation);

  /// Called by the transform component after the entity was placed.
  void onOwnerMoved();
  /// Called when the component goes: leaves the parent and lets all children go.
  void detach();

private:
  void closeGaps() const;
  void addChild(LinkComponent& child);
  void forgetChild(LinkComponent& child);
  bool isBelow(const LinkComponent& other) const;
  void leaveParent();
  void updateLocalTransform();
  void updateWorldTransform();
  void updateChildren();

  std::uint64_t mParentId = UNINITIALIZED_ID;
  LinkComponent* mParent = nullptr;
  // A child that leaves turns into null where it stood; the list is closed up when it is read or half of it is gone.
  mutable std::vector<LinkComponent*> mChildren;
  mutable std::size_t mNumberOfGaps = 0;
  std::size_t mPlaceInParent = 0;
  glm::vec3 mLocalPosition{0, 0, 0};
  glm::quat mLocalRotation{1, 0, 0, 0};
  int mParentLinkType = 0;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::LinkComponent)
