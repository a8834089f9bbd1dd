#pragma once
#include "game_plugin/scenario/messages/MessageNames.h"

#include "em5/map/AnimationHelper.h"
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"
#include "qsf/base/Time.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace script {

/// A unit goes to a target, turns to it and plays up to three animations one after the other. It tells how far it has
/// come by the message "script::UseEquipment" with the unit and the target as filters and the parameter "Message": the
/// given text with a 0 behind it before the first animation, a 1, 2 and 3 behind it after the first, second and third;
/// all four come, however few the animations are. A bar over the unit shows the progress.
///
/// Ends without a further message if the target is gone or, after the move, still too far away. What it has done counts
/// when another action interrupts it: it goes on where it was, and its bar stays meanwhile.
class UseEquipmentAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"script::UseEquipmentAction"};
  static constexpr const char* MESSAGE = messages::USE_EQUIPMENT;
  static void declareCamp();

  /// Local asset name, and how often it is still to be played.
  using Animations = std::vector<std::pair<std::string, int>>;

  /// The animations are a text of items with blanks between, each a local asset name with or without a comma and a
  /// number of repetitions behind it; a number that can't be read is logged and counts as 1. Scripts rely on two
  /// animations ending the action with a fault after the message 2.
  ///
  /// `totalAnimationTime`: seconds that the bar takes to fill; 0 for no bar. `maximumDistance`: units to the target
  /// from which on the unit has to move, if `moveToTarget` lets it. `targetPointProvider`: class name.
  void init(std::uint64_t targetId, const std::string& animationText, const std::string& message,
            float totalAnimationTime, float maximumDistance, bool moveToTarget, const std::string& targetPointProvider);
  const Animations& getAnimations() const { return mAnimations; }
  qsf::action::Description describe() const override;

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  enum class State { MOVE, TURN, BEGIN, FIRST_ANIMATION, SECOND_ANIMATION, THIRD_ANIMATION, END };

  bool isTooFarFrom(qsf::Entity& target) const;
  void moveTo(qsf::Entity& target);
  void turnTo(const qsf::Entity& target);
  void goOnWhenPlayed(std::size_t place, std::size_t leastSize, State next, const qsf::Clock& clock);
  bool playAgain(std::size_t place, std::size_t leastSize);
  void tell(int stage) const;

  State mState = State::MOVE;
  std::uint64_t mTargetId = qsf::UNINITIALIZED_ID;
  std::string mAnimationText;
  std::string mMessage;
  float mTotalAnimationTime = 0;
  qsf::Time mElapsed;
  float mMaximumDistance = 0;
  bool mMoveToTarget = false;
  std::string mTargetPointProvider;
  Animations mAnimations;
  std::shared_ptr<qsf::MeshAnimationChannel> mCurrentAnimation;
};

}
CAMP_TYPE_NONCOPYABLE(script::UseEquipmentAction)
