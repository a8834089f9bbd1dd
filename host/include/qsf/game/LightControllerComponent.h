#pragma once
#include "qsf/component/Component.h"

namespace qsf::game {

/// A lamp that is switched: it shines while the component is active. Property "LightType", what it is on a vehicle (see
/// LightType; 0 at first).
class QSF_API LightControllerComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::game::LightControllerComponent"};
  explicit LightControllerComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  enum LightType { NO_LIGHT = 0, HEAD_LIGHT, BRAKE_LIGHT, BLINKER_LEFT, BLINKER_RIGHT, BLUE_LIGHT };

  /// A LightType as a number; other numbers are kept.
  int getLightType() const { return mLightType; }
  void setLightType(int type) { mLightType = type; }

private:
  int mLightType = NO_LIGHT;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::game::LightControllerComponent)
