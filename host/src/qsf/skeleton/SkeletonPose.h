#pragma once
#include "qsf/component/BoneState.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ogre {
class Bone;
class Skeleton;
class SkeletonInstance;
}

namespace qsf {

/// The bones of one entity: a copy of a skeleton that is moved by animations and, bone by bone, by hand.
class SkeletonPose {
public:
  explicit SkeletonPose(std::shared_ptr<Ogre::Skeleton> skeleton);
  ~SkeletonPose();
  SkeletonPose(const SkeletonPose&) = delete;
  SkeletonPose& operator=(const SkeletonPose&) = delete;

  /// Nothing if the skeleton has none of that name.
  std::optional<BoneState> getState(const std::string& bone) const;
  /// Takes the bone under manual control, as it stands, or gives it back. Null if the skeleton has none of that name.
  Ogre::Bone* setManual(const std::string& bone, bool manual);
  /// Moves the bones that nobody moves by hand to where the animation has them at that part (0 to 1) of its length, or
  /// to their rest pose if the skeleton has no such animation. It is found by its whole name, else by what stands
  /// behind the last slash.
  void show(const std::string& animation, float offset);

private:
  std::shared_ptr<Ogre::Skeleton> mSkeleton;
  std::unique_ptr<Ogre::SkeletonInstance> mInstance;
  std::vector<float> mShares; // of an animation in each bone: 0 under manual control
};

}
