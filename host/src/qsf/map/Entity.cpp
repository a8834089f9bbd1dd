#include "qsf/map/Entity.h"

#include "qsf/game/HiddenComponent.h"
#include "qsf/map/MapInternals.h"

namespace qsf {

Entity::~Entity() { destroyAllComponents(); }

void Entity::setHidden(bool hidden) {
  mHidden = hidden;
  if (auto* component = getOrCreateComponent<game::HiddenComponent>()) component->setHidden(hidden);
}

void Entity::onComponentAdded(Component& component) {
  if (mOnMap) mMap.getInternals().addComponent(component);
}

void Entity::onComponentRemoved(Component& component) {
  if (mOnMap) mMap.getInternals().removeComponent(component);
}

bool Entity::isStarted() const { return mOnMap && mMap.isStarted(); }

void Entity::releaseComponent(std::unique_ptr<Component> component) {
  // The caller may be a job of that component, so it lives until the frame ends.
  mMap.getInternals().destroyedComponents.push_back(std::move(component));
}

}
