#pragma once
#include "qsf/component/Component.h"
#include "qsf/job/JobProxy.h"

#include <glm/glm.hpp>

namespace em5 {

/// Sends its entity away: it moves to a place and is destroyed when it gets there. An entity that cannot move stays
/// until it is put there. Rests while the component is inactive. Properties "TargetPosition", "Despawning" (whether a
/// target was set).
class QSF_API MoveToDespawnComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::MoveToDespawnComponent"};
  explicit MoveToDespawnComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const glm::vec3& getTargetPosition() const { return mTargetPosition; }
  /// Starts the way. A position with a coordinate that is no finite number is refused.
  void setTargetPosition(const glm::vec3& position);
  bool isDespawning() const { return mDespawning; }
  void setDespawning(bool despawning);

protected:
  bool onStartup() override;
  void onShutdown() override;
  void onSetActive(bool active) override;

private:
  void updateJob();
  void move();

  qsf::JobProxy mMoveJobProxy;
  glm::vec3 mTargetPosition{0, 0, 0};
  bool mDespawning = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::MoveToDespawnComponent)
