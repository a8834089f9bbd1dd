#pragma once
#include "qsf/component/Component.h"

namespace qsf {

/// Air and light of a map; it belongs on the core entity. Properties "GroundFogStart" (500 at first) and
/// "AtmosphereFogStart" (2000): how far from the camera the fog on the ground and that in the air begin, in units.
class QSF_API EnvironmentComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::EnvironmentComponent"};
  explicit EnvironmentComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  float getGroundFogStart() const { return mGroundFogStart; }
  void setGroundFogStart(float distance) { mGroundFogStart = distance; }
  float getAtmosphereFogStart() const { return mAtmosphereFogStart; }
  void setAtmosphereFogStart(float distance) { mAtmosphereFogStart = distance; }

private:
  float mGroundFogStart = 500.0f;
  float mAtmosphereFogStart = 2000.0f;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::EnvironmentComponent)
