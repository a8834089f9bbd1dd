#include "qsf/prototype/Prototype.h"

#include "qsf/log/LogSystem.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/args.hpp>

namespace qsf {

namespace {

Component* constructByCamp(const camp::Class& metaclass, Prototype& prototype) {
  const camp::UserObject made = metaclass.construct(camp::Args(camp::UserObject(prototype)));
  return made.pointer() ? made.get<Component*>() : nullptr;
}

/// Null if there is no such class, if it has no constructor for a prototype or is no component.
std::unique_ptr<Component> makeComponent(StringHash componentId, Prototype& prototype) {
  const ClassRegistry::ComponentMaker maker = ClassRegistry::findComponentMaker(componentId);
  const camp::Class* metaclass = maker ? nullptr : findComponentClass(componentId);
  if (!maker && !metaclass) return nullptr;
  try {
    return std::unique_ptr<Component>(maker ? maker(&prototype) : constructByCamp(*metaclass, prototype));
  } catch (const std::exception& fault) {
    logMessage(LogSystem::ERROR,
               "A component " + findComponentClass(componentId)->name() + " could not be made: " + fault.what());
    return nullptr;
  }
}

}

Prototype::~Prototype() = default;

Component* Prototype::getComponentById(StringHash componentId) const {
  for (std::size_t i = 0; i < mIds.size(); ++i)
    if (mIds[i] == componentId) return mView[i];
  return nullptr;
}

Component* Prototype::getOrCreateComponentById(StringHash componentId, bool startup) {
  if (Component* existing = getComponentById(componentId)) return existing;
  std::unique_ptr<Component> made = makeComponent(componentId, *this);
  if (!made) return nullptr;
  Component& component = *made;
  component.mId = componentId;
  mComponents.push_back(std::move(made));
  mView.push_back(&component);
  mIds.push_back(componentId);
  ++mChanges;
  mPropertyListeners += component.implementsOnComponentPropertyChange();
  onComponentAdded(component);
  if (startup) component.startup();
  return &component;
}

void Prototype::destroyComponentById(StringHash componentId) {
  Component* component = getComponentById(componentId);
  if (!component) return;
  component->shutdown();
  // The shutdown may have changed the list, so the place is looked up behind it.
  const auto found = std::find(mView.begin(), mView.end(), component);
  if (found == mView.end()) return;
  const auto index = found - mView.begin();
  onComponentRemoved(*component);
  std::unique_ptr<Component> owned = std::move(mComponents[static_cast<std::size_t>(index)]);
  mComponents.erase(mComponents.begin() + index);
  mView.erase(mView.begin() + index);
  mIds.erase(mIds.begin() + index);
  ++mChanges;
  mPropertyListeners -= component->implementsOnComponentPropertyChange();
  releaseComponent(std::move(owned));
}

void Prototype::destroyAllComponents() {
  while (!mComponents.empty()) {
    mView.pop_back();
    mIds.pop_back();
    mComponents.pop_back();
  }
}

}
