#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"

#include <string>

namespace em5 {

/// A person. Properties "EquipmentId" (the entity held as active equipment), "ContainerId" (the vehicle or building
/// that the person is in), "Gangster", "Drunk", "Masked" (wears its breathing
/// mask and suit), "Animation" (local asset name of what it shows, empty for nothing; what is set is played over and
/// over on the person's qsf::MeshAnimationComponent if it has one).
class QSF_API PersonComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::PersonComponent"};
  explicit PersonComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Uninitialised without equipment. The entity isn't tested for existence.
  std::uint64_t getEquipmentId() const { return mEquipmentId; }
  void setEquipmentId(std::uint64_t entityId) { mEquipmentId = entityId; }

  /// Uninitialised outside.
  std::uint64_t getContainerId() const { return mContainerId; }
  void setContainerId(std::uint64_t entityId) { mContainerId = entityId; }

  bool isGangster() const { return mGangster; }
  void setGangsterFlag(bool gangster) { mGangster = gangster; }
  bool isDrunken() const { return mDrunken; }
  void setDrunken(bool drunken) { mDrunken = drunken; }
  enum PersonFlag { PERSON_FLAG_DRUNK = 0 };
  /// Sets or clears a flag by its number; one that isn't in PersonFlag does nothing.
  void setPersonFlags(int flag, bool set);
  /// What the person's qsf::MeshAnimationComponent plays, whoever began it; without one what was set.
  std::string getAnimation() const;
  /// Over and over.
  void setAnimation(const std::string& localAssetName);
  void clearAnimation() { setAnimation(""); }

  bool isMasked() const { return mMasked; }
  void setMasked(bool masked) { mMasked = masked; }

private:
  std::uint64_t mEquipmentId = qsf::UNINITIALIZED_ID;
  std::uint64_t mContainerId = qsf::UNINITIALIZED_ID;
  std::string mAnimation;
  bool mGangster = false;
  bool mDrunken = false;
  bool mMasked = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::PersonComponent)
