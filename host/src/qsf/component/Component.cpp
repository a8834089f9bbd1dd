#include "qsf/component/Component.h"

#include "qsf/log/FaultCounter.h"
#include "qsf/map/Entity.h"

#include <cassert>

namespace qsf {

void Component::declareCamp() {
  camp::Class::declare<Component>("qsf::Component")
      .base<Object>()
      .property("Active", &Component::isActive, &Component::setActive);
}

Entity& Component::getEntity() const {
  Entity* entity = findEntity();
  assert(entity && "a prefab's component has no entity");
  return *entity;
}

Entity* Component::findEntity() const { return mPrototype->findEntity(); }

std::uint64_t Component::getEntityId() const { return mPrototype->getId(); }

StringHash Component::getId() const {
  if (!mId.isInitialized()) mId = StringHash(getCampClass().name());
  return mId;
}

void Component::setActive(bool active) {
  if (mActive == active) return;
  mActive = active;
  onSetActive(active);
}

bool Component::startup(bool /*withParents*/) {
  if (mRunning || !mPrototype->isStarted()) return mRunning;
  mRunning = true; // while it starts, too: what it calls may ask
  bool started = false;
  callGuarded([&] { started = onStartup(); }, [&] { return "the start of " + describe(); });
  return mRunning = started;
}

void Component::shutdown() {
  if (!mRunning) return;
  mRunning = false;
  callGuarded([&] { onShutdown(); }, [&] { return "the shutdown of " + describe(); });
}

bool Component::isPropertyChangeHeard() const { return mPrototype->mPropertyListeners != 0; }

void Component::promotePropertyChange(StringHash propertyId) {
  if (!isPropertyChangeHeard()) return;
  // A copy: whoever hears it may make and destroy components, whose memory stays until the end of the frame.
  const std::vector<Component*> components = mPrototype->getComponents();
  for (Component* listener : components)
    if (listener->isRunning() && listener->implementsOnComponentPropertyChange())
      callGuarded([&] { listener->onComponentPropertyChange(*this, propertyId); },
                  [&] { return "a property change heard by " + listener->describe(); });
}

std::string Component::describe() const {
  return "component " + getCampClass().name() + " of entity " + std::to_string(getEntityId());
}

}
