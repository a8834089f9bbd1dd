#include "qsf/component/CameraComponent.h"

#include "qsf/component/TransformComponent.h"
#include "qsf/map/EntityHelper.h"
#include "qsf/prototype/Prototype.h"
#include "qsf/reflection/ClassRegistry.h"

#include <glm/gtc/quaternion.hpp>
#include <glm/gtx/quaternion.hpp>

#include <cmath>
#include <stdexcept>

namespace qsf {

static const DeclaredClass<CameraComponent> declared;

void CameraComponent::declareCamp() {
  camp::Class::declare<CameraComponent>("qsf::CameraComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("FieldOfView", &CameraComponent::getFieldOfView, &CameraComponent::setFieldOfView);
}

void CameraComponent::setFieldOfView(float degrees) {
  if (!(degrees >= 1 && degrees <= 179)) throw std::out_of_range("a field of view lies in 1 to 179 degrees");
  mFieldOfView = degrees;
}

Ray CameraComponent::getRay(const glm::vec2& normalizedPosition, float aspectRatio) const {
  const float height = std::tan(glm::radians(mFieldOfView) / 2);
  const glm::vec3 local((normalizedPosition.x * 2 - 1) * height * aspectRatio, (1 - normalizedPosition.y * 2) * height,
                        -1);
  const EntityHelper helper(getEntity());
  return {helper.getPosition(), helper.getRotation() * glm::normalize(local)};
}

bool CameraComponent::project(const glm::vec3& position, float aspectRatio, glm::vec2& normalizedPosition) const {
  const EntityHelper helper(getEntity());
  const glm::vec3 local = glm::conjugate(helper.getRotation()) * (position - helper.getPosition());
  if (!(local.z < 0)) return false;
  const float height = std::tan(glm::radians(mFieldOfView) / 2);
  normalizedPosition = {(local.x / (-local.z * height * aspectRatio) + 1) / 2, (1 - local.y / (-local.z * height)) / 2};
  return true;
}

void CameraComponent::lookAt(const glm::vec3& target, float distance) {
  auto* transform = getPrototype().getComponent<TransformComponent>();
  if (!transform) return;
  // Steep enough that nothing low stands in the way, not so steep that "up" is lost.
  const glm::vec3 back = glm::normalize(glm::vec3(0, 2, 1));
  transform->setPositionAndRotation(target + back * distance, glm::quatLookAt(-back, glm::vec3(0, 1, 0)));
}

}
