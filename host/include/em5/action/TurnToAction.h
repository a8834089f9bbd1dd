#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

namespace em5 {

/// Turns on the spot until the front, the negative z axis, points at an entity, seen from above; reversed, until the
/// back does. Follows an entity that moves. Ends when that is reached, when the entity is gone and when it is
/// linked below this one.
class QSF_API TurnToAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::TurnToAction"};
  static constexpr float DEFAULT_TURN_SPEED = 270.0f;
  static void declareCamp();

  /// A speed that isn't above 0 counts as the default.
  void init(std::uint64_t targetId, bool reverse = false, float degreesPerSecond = DEFAULT_TURN_SPEED);
  void init(const qsf::Entity& target, bool reverse = false, float degreesPerSecond = DEFAULT_TURN_SPEED);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  std::uint64_t mTargetId = qsf::UNINITIALIZED_ID;
  float mTurnSpeed = DEFAULT_TURN_SPEED;
  bool mReverse = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::TurnToAction)

namespace qsf {
/// Scripts' code knows it by this name as well, and so does the class registry.
using TurnToAction = em5::TurnToAction;
}
