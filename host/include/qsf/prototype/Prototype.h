#pragma once
#include "qsf/component/Component.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qsf {

/// A bag of components with an id. Owns its components, at most one of each class, in the order of their creation.
class QSF_API Prototype {
public:
  explicit Prototype(std::uint64_t id) : mId(id) {}
  virtual ~Prototype();
  Prototype(const Prototype&) = delete;
  Prototype& operator=(const Prototype&) = delete;

  std::uint64_t getId() const { return mId; }

  /// Id is the hash of the class name; null if there is none of exactly that class.
  Component* getComponentById(StringHash componentId) const;
  /// Null if no component class of that id was declared. `startup` starts a new component at once.
  Component* getOrCreateComponentById(StringHash componentId, bool startup = true);
  /// No component of that id: nothing happens.
  void destroyComponentById(StringHash componentId);
  const std::vector<Component*>& getComponents() const { return mView; }
  /// Grows by one with each component made or destroyed.
  std::uint32_t getComponentChangesCount() const { return mChanges; }

  /// This prototype as an entity; null for a prefab.
  virtual Entity* findEntity() { return nullptr; }

  template <class T> T* getComponent() const { return static_cast<T*>(getComponentById(T::COMPONENT_ID)); }
  template <class T> T* getOrCreateComponent() { return static_cast<T*>(getOrCreateComponentById(T::COMPONENT_ID)); }

protected:
  void destroyAllComponents();
  /// Hooks for the map's component index.
  virtual void onComponentAdded(Component& /*component*/) {}
  virtual void onComponentRemoved(Component& /*component*/) {}
  virtual bool isStarted() const { return false; }
  /// Takes over a component that was removed; it has been shut down.
  virtual void releaseComponent(std::unique_ptr<Component> component) { component.reset(); }

private:
  friend class Component;
  std::uint64_t mId;
  std::vector<std::unique_ptr<Component>> mComponents;
  std::vector<Component*> mView;
  std::vector<StringHash> mIds; // of the components, so that a look-up touches one small array
  std::uint32_t mChanges = 0;
  std::uint32_t mPropertyListeners = 0; // components that hear of changed properties
};

}
CAMP_TYPE_NONCOPYABLE(qsf::Prototype)
