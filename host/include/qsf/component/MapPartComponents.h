#pragma once
#include "qsf/component/Component.h"

#include <glm/glm.hpp>

namespace qsf {

/// Marks an entity as the ground itself.
class QSF_API TerrainComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::TerrainComponent"};
  explicit TerrainComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

/// Marks an entity as a crossing of streets.
class QSF_API StreetCrossingComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::StreetCrossingComponent"};
  explicit StreetCrossingComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

/// Marks an entity as a piece of street between crossings.
class QSF_API StreetSectionComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::StreetSectionComponent"};
  explicit StreetSectionComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();
};

/// A lamp. Properties "Color" (red, green, blue), "Intensity", "Radius" in units.
class QSF_API LightComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::LightComponent"};
  explicit LightComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const glm::vec3& getColor() const { return mColor; }
  void setColor(const glm::vec3& color) { mColor = color; }
  float getIntensity() const { return mIntensity; }
  void setIntensity(float intensity) { mIntensity = intensity; }
  float getRadius() const { return mRadius; }
  void setRadius(float radius) { mRadius = radius; }

private:
  glm::vec3 mColor{1, 1, 1};
  float mIntensity = 1;
  float mRadius = 10;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::TerrainComponent)
CAMP_TYPE_NONCOPYABLE(qsf::StreetCrossingComponent)
CAMP_TYPE_NONCOPYABLE(qsf::StreetSectionComponent)
CAMP_TYPE_NONCOPYABLE(qsf::LightComponent)
