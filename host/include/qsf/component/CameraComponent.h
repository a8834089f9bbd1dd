#pragma once
#include "qsf/component/Component.h"

#include <glm/glm.hpp>

namespace qsf {

/// A half line in the world.
struct Ray {
  glm::vec3 origin{0, 0, 0};
  glm::vec3 direction{0, -1, 0}; ///< unit length
};

/// Looks along its entity's negative z axis. Property "FieldOfView", vertical, in degrees.
class QSF_API CameraComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::CameraComponent"};
  explicit CameraComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  float getFieldOfView() const { return mFieldOfView; }
  /// Outside of 1 to 179 throws std::out_of_range.
  void setFieldOfView(float degrees);

  /// The ray through a place of the picture, 0 to 1 from its upper left corner.
  Ray getRay(const glm::vec2& normalizedPosition, float aspectRatio) const;
  /// Where a place of the world appears in the picture. False if it is behind the camera.
  bool project(const glm::vec3& position, float aspectRatio, glm::vec2& normalizedPosition) const;
  /// Places the camera obliquely above a place and turns it there, so that the place is in the middle of the picture.
  void lookAt(const glm::vec3& target, float distance = 60.0f);

private:
  float mFieldOfView = 45.0f;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::CameraComponent)
