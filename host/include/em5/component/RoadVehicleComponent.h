#pragma once
#include "qsf/component/Component.h"

#include <cstdint>
#include <vector>

namespace em5 {

/// What vehicles on wheels have besides: their lights. Properties "BlueLight", "HeadLight", "BrakeLight", "Blinker".
/// The lamps themselves are entities that are linked to the vehicle and have a qsf::game::LightControllerComponent.
class QSF_API RoadVehicleComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::RoadVehicleComponent"};
  explicit RoadVehicleComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  enum BlinkerState { BLINKER_OFF = 0, BLINKER_LEFT = 1, BLINKER_RIGHT = 2, BLINKER_BOTH = 3 };

  bool isBlueLightOn() const { return mBlueLight; }
  void setBlueLight(bool on) { mBlueLight = on; }
  bool isHeadLightOn() const { return mHeadLight; }
  void setHeadLight(bool on) { mHeadLight = on; }
  bool isBrakeLightOn() const { return mBrakeLight; }
  void setBrakeLight(bool on) { mBrakeLight = on; }
  /// Both operations take and give a BlinkerState as a number; other numbers are off.
  int getBlinker() const { return mBlinker; }
  void setBlinker(int state);

  /// What drivers and scripts do: a vehicle that is destroyed keeps its lights as they are, unless `evenIfDestroyed`.
  void setBlueLightState(bool on, bool evenIfDestroyed);
  void setHeadLightState(bool on, bool evenIfDestroyed);
  void setBrakeLightState(bool on, bool evenIfDestroyed);
  void setBlinkerState(int state, bool evenIfDestroyed);

  /// Appends the lamps of a qsf::game::LightControllerComponent::LightType that are linked to the vehicle, in the order
  /// in which they were linked.
  void getVehicleLightIdsByType(int lightType, std::vector<std::uint64_t>& lightIds) const;

private:
  bool takesOrders(bool evenIfDestroyed) const;

  int mBlinker = BLINKER_OFF;
  bool mBlueLight = false;
  bool mHeadLight = false;
  bool mBrakeLight = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::RoadVehicleComponent)
