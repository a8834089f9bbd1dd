#pragma once
#include "qsf/base/Time.h"
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

namespace em5 {

/// A plant whose substances get out when it burns: a cloud grows round it and harms persons without a mask. Properties
/// "Simulating" (whether there is a cloud), "CloudRadius" (units; 0 without). See docs/host-game.md for the rates.
class QSF_API IndustrialPlantComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::IndustrialPlantComponent"};
  explicit IndustrialPlantComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// The cloud ends some time after the plant's fire is out; one of a plant that never burns stays until it is told to
  /// end. A cloud that is there goes on.
  void startSimulation() { setSimulating(true); }
  bool isSimulating() const { return mSimulating; }
  void setSimulating(bool simulating);
  float getCloudRadius() const { return mCloudRadius; }

protected:
  bool onStartup() override;
  void onShutdown() override;

private:
  void updateJob();
  void update(qsf::Time timePassed);

  qsf::JobProxy mCloudJobProxy;
  qsf::Time mTimeToVanish;
  float mCloudRadius = 0.0f;
  bool mSimulating = false;
  bool mHasBurned = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::IndustrialPlantComponent)
