#pragma once
#include "qsf/base/Ids.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <set>

namespace em5 {

/// An electrical box, intact at first. A defective one sparks and may attract onlookers: each civilian that comes
/// within the radius goes there with that chance, once. Properties "Defect", "GapeChance" (0 to 1), "GapeRadius"
/// (units), "LightningEntity", "SparksEntity" (ids of its particles, uninitialised without).
class QSF_API EboxComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::EboxComponent"};
  explicit EboxComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  bool isDefect() const { return mDefect; }
  void setDefect(bool defect);
  void setEboxDefectiveWithGaping(float gapeChance, float gapeRadius);
  /// Repairs it: nobody gapes any more, and its particles are destroyed.
  void setEboxIntact();
  float getGapeChance() const { return mGapeChance; }
  float getGapeRadius() const { return mGapeRadius; }
  /// Whether its entity is on fire.
  virtual bool isBurning() const;

  std::uint64_t getLightningEntity() const { return mLightningEntity; }
  void setLightningEntity(std::uint64_t entityId) { mLightningEntity = entityId; }
  std::uint64_t getSparksEntity() const { return mSparksEntity; }
  void setSparksEntity(std::uint64_t entityId) { mSparksEntity = entityId; }

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void destroyParticles();
  void updateJob();
  void attractOnlookers();

  qsf::JobProxy mGapeJob;
  std::set<std::uint64_t> mAskedIds; ///< persons that have made up their minds
  std::uint64_t mLightningEntity = qsf::UNINITIALIZED_ID;
  std::uint64_t mSparksEntity = qsf::UNINITIALIZED_ID;
  float mGapeChance = 0;
  float mGapeRadius = 0;
  bool mDefect = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::EboxComponent)
