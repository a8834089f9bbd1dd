#include "qsf/map/EntityHelper.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/component/TransformComponent.h"

namespace qsf {

glm::vec3 EntityHelper::getPosition() const {
  const auto* transform = mEntity.getComponent<TransformComponent>();
  return transform ? transform->getPosition() : glm::vec3(0, 0, 0);
}

glm::quat EntityHelper::getRotation() const {
  const auto* transform = mEntity.getComponent<TransformComponent>();
  return transform ? transform->getRotation() : glm::quat(1, 0, 0, 0);
}

bool EntityHelper::movesAlongWith(const Entity& other) const {
  for (const Entity* link = &mEntity; link;) {
    if (link == &other) return true;
    const auto* component = link->getComponent<LinkComponent>();
    link = component && component->getParentLink() ? &component->getParentLink()->getEntity() : nullptr;
  }
  return false;
}

Entity* EntityHelper::getParent() const {
  const auto* link = mEntity.getComponent<LinkComponent>();
  return link && link->getParentLink() ? &link->getParentLink()->getEntity() : nullptr;
}

}
