#pragma once
#include "qsf/component/Component.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// Where an entity stands in the world, in units. Entities that are linked below it follow (see LinkComponent); linking
/// leaves the scale alone. Properties "Position", "Rotation", "Scale".
class QSF_API TransformComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::TransformComponent"};
  explicit TransformComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const glm::vec3& getPosition() const { return mPosition; }
  const glm::quat& getRotation() const { return mRotation; }
  const glm::vec3& getScale() const { return mScale; }

  void setPosition(const glm::vec3& position);
  /// Made a unit quaternion; one that has no direction becomes the identity.
  void setRotation(const glm::quat& rotation);
  void setScale(const glm::vec3& scale);
  void setPositionAndRotation(const glm::vec3& position, const glm::quat& rotation);

private:
  friend class LinkComponent;
  /// Places it without telling the link component, which does the telling when a parent moves.
  void place(const glm::vec3& position, const glm::quat& rotation);
  void tellLink();

  glm::vec3 mPosition{0, 0, 0};
  glm::quat mRotation{1, 0, 0, 0};
  glm::vec3 mScale{1, 1, 1};
};

}
CAMP_TYPE_NONCOPYABLE(qsf::TransformComponent)
