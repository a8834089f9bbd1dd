#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/base/Time.h"
#include "qsf/reflection/InheritedObject.h"

namespace qsf {

class Entity;
class Prototype;

/// A part of an entity. Made and destroyed by its prototype. Property "Active". Components that live over time derive
/// and override the on... operations; a component that needs the frame registers a job proxy in onStartup and
/// unregisters it in onShutdown, since its memory outlives its removal until the end of the frame.
class QSF_API Component : public InheritedObject {
  CAMP_RTTI()
public:
  explicit Component(Prototype* prototype) : mPrototype(prototype) {}
  ~Component() override = default;
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;
  static void declareCamp();

  Prototype& getPrototype() const { return *mPrototype; }
  /// The owning entity. Never called on a component of a prefab.
  Entity& getEntity() const;
  std::uint64_t getEntityId() const;
  /// Null for a component of a prefab.
  Entity* findEntity() const;
  /// Hash of the class name.
  StringHash getId() const;

  bool isActive() const { return mActive; }
  void setActive(bool active);

  /// Starts the component if it isn't running. Returns whether it runs. Components of a prefab and of a map that isn't
  /// started never do.
  bool startup(bool withParents = true);
  void shutdown();
  bool isRunning() const { return mRunning; }

protected:
  /// Called when the entity stands on a map of a started game. False: the component doesn't run.
  virtual bool onStartup() { return true; }
  virtual void onShutdown() {}
  virtual void onSetActive(bool /*active*/) {}
  /// True: while it runs, onComponentPropertyChange is called, at once, for what components of its entity promote.
  virtual bool implementsOnComponentPropertyChange() const { return false; }
  /// `propertyId` is the hash of the property's name, which has its new value already.
  virtual void onComponentPropertyChange(const Component& /*component*/, StringHash /*propertyId*/) {}
  /// Whether anybody would hear promotePropertyChange.
  bool isPropertyChangeHeard() const;
  /// Tells the entity's components that a property of this one was set.
  void promotePropertyChange(StringHash propertyId);

private:
  friend class Prototype;
  std::string describe() const;
  Prototype* mPrototype;
  mutable StringHash mId;
  bool mActive = true;
  bool mRunning = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::Component)

// A component class is declared with a constructor that takes a prototype, for which CAMP needs the whole class.
#include "qsf/prototype/Prototype.h" // IWYU pragma: keep
