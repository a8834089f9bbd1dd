#include "qsf/component/TransformComponent.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/map/MapInternals.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <cmath>

namespace qsf {

namespace {

glm::quat unit(const glm::quat& rotation) {
  const float square = glm::dot(rotation, rotation);
  if (!std::isfinite(square) || square <= 0) return {1, 0, 0, 0};
  // One that is a unit quaternion within the precision of texts is kept to the bit.
  return std::abs(square - 1) < 1e-4f ? rotation : glm::normalize(rotation);
}

}

static const DeclaredClass<TransformComponent> declared;

void TransformComponent::declareCamp() {
  camp::Class::declare<TransformComponent>("qsf::TransformComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("Position", &TransformComponent::getPosition, &TransformComponent::setPosition)
      .property("Rotation", &TransformComponent::getRotation, &TransformComponent::setRotation)
      .property("Scale", &TransformComponent::getScale, &TransformComponent::setScale);
}

void TransformComponent::setPosition(const glm::vec3& position) { setPositionAndRotation(position, mRotation); }

void TransformComponent::setRotation(const glm::quat& rotation) { setPositionAndRotation(mPosition, rotation); }

void TransformComponent::setScale(const glm::vec3& scale) { mScale = scale; }

void TransformComponent::setPositionAndRotation(const glm::vec3& position, const glm::quat& rotation) {
  place(position, rotation);
  tellLink();
}

void TransformComponent::place(const glm::vec3& position, const glm::quat& rotation) {
  mPosition = position;
  mRotation = unit(rotation);
  if (Entity* entity = findEntity()) entity->getMap().getInternals().onEntityMoved(*entity);
}

void TransformComponent::tellLink() {
  if (Entity* entity = findEntity())
    if (LinkComponent* link = entity->getComponent<LinkComponent>()) link->onOwnerMoved();
}

}
