#include "game_plugin/scenario/world/EntityAccess.h"

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
  return glm::distance(positionOf(a), positionOf(b));
}

}
