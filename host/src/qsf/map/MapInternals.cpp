#include "qsf/map/MapInternals.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"

namespace qsf {

void Map::Internals::reset() {
  components.clear();
  spatial.clear();
  ground = Ground();
  layers.clear();
  layers.push_back(std::make_unique<Layer>(0, "Base"));
}

void Map::Internals::addComponent(Component& component) {
  components.add(component);
  spatial.add(component);
}

void Map::Internals::removeComponent(Component& component) {
  if (!components.remove(component)) return;
  spatial.remove(component);
  if (component.getId() == LinkComponent::COMPONENT_ID) static_cast<LinkComponent&>(component).detach();
}

void Map::Internals::onEntityMoved(Entity& entity) {
  spatial.move(entity);
  if (auto* collision = entity.getComponent<BulletCollisionComponent>()) collision->onEntityMoved();
}

}
