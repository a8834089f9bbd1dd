#include "qsf/map/MapInternals.h"

#include "qsf/component/LinkComponent.h"
#include "qsf/physics/BulletCollisionComponent.h"

namespace qsf {

namespace {

/// Where the component of that entity stands or would stand in its class's list.
std::vector<Component*>::iterator placeOf(std::vector<Component*>& list, std::uint64_t entityId) {
  // Ids mostly come in ascending order, so the end is tried first.
  if (list.empty() || list.back()->getEntityId() < entityId) return list.end();
  return std::lower_bound(list.begin(), list.end(), entityId,
                          [](const Component* component, std::uint64_t id) { return component->getEntityId() < id; });
}

}

void Map::Internals::reset() {
  components.clear();
  spatial.clear();
  ground = Ground();
  layers.clear();
  layers.push_back(std::make_unique<Layer>(0, "Base"));
}

void Map::Internals::addComponent(Component& component) {
  std::vector<Component*>& list = components[component.getId()];
  list.insert(placeOf(list, component.getEntityId()), &component);
  spatial.add(component);
}

void Map::Internals::removeComponent(Component& component) {
  const auto list = components.find(component.getId());
  if (list == components.end()) return;
  const auto place = placeOf(list->second, component.getEntityId());
  if (place == list->second.end() || *place != &component) return;
  list->second.erase(place);
  spatial.remove(component);
  if (component.getId() == LinkComponent::COMPONENT_ID) static_cast<LinkComponent&>(component).detach();
}

void Map::Internals::onEntityMoved(Entity& entity) {
  spatial.move(entity);
  if (auto* collision = entity.getComponent<BulletCollisionComponent>()) collision->onEntityMoved();
}

}
