#include "game_plugin/scenario/shared/EntityAccess.h"

#include "qsf/Qsf.h"
#include "qsf/component/TransformComponent.h"
#include "qsf/map/Map.h"

namespace script {

qsf::Entity* findEntity(std::uint64_t id) {
  return qsf::Qsf::instance() ? qsf::getMainMap().getEntityById(id) : nullptr;
}

glm::vec3 positionOf(const qsf::Entity& entity) {
  const auto* transform = entity.getComponent<qsf::TransformComponent>();
  return transform ? transform->getPosition() : glm::vec3(0);
}

float distanceBetween(const qsf::Entity& a, const qsf::Entity& b) {
  const glm::vec3 difference = positionOf(a) - positionOf(b);
  return std::sqrt(glm::dot(difference, difference));
}

}
