#pragma once
#include "qsf/reflection/Object.h"

namespace qsf {

class Entity;
class GameLogicComponent;

/// What an entity is or wants beside its components, as a role that others ask for. Classes are found by the hash of
/// their name in the class registry. Owned by the entity's GameLogicComponent. Logics that act over time
/// register a job proxy in onStartup and unregister it in onShutdown.
class QSF_API GameLogic : public Object {
  CAMP_RTTI()
public:
  static void declareCamp();
  /// The entity whose logic this is; null for a logic of a prefab.
  Entity* findEntity() const;

protected:
  /// Called when the logic is there and its component runs, whichever comes last.
  virtual void onStartup() {}
  /// Called for each startup: when the logic is deleted, and when the component no longer runs.
  virtual void onShutdown() {}

private:
  friend class GameLogicComponent;
  const GameLogicComponent* mComponent = nullptr;
  bool mStarted = false;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::GameLogic)
