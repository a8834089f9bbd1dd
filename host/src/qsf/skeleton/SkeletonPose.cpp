#include "qsf/skeleton/SkeletonPose.h"

#include <OgreAnimation.h>
#include <OgreBone.h>
#include <OgreSkeletonInstance.h>

namespace qsf {

namespace {

glm::vec3 toGlm(const Ogre::Vector3& vector) { return {vector.x, vector.y, vector.z}; }
glm::quat toGlm(const Ogre::Quaternion& rotation) { return {rotation.w, rotation.x, rotation.y, rotation.z}; }

/// Free of axis and sign, and of the lengths of the rotations.
float degreesBetween(const glm::quat& from, const glm::quat& to) {
  const glm::dquat turn = glm::conjugate(glm::dquat(from)) * glm::dquat(to);
  return static_cast<float>(
      glm::degrees(2 * std::atan2(glm::length(glm::dvec3(turn.x, turn.y, turn.z)), std::abs(turn.w))));
}

}

SkeletonPose::SkeletonPose(std::shared_ptr<Ogre::Skeleton> skeleton)
    : mSkeleton(std::move(skeleton)), mInstance(std::make_unique<Ogre::SkeletonInstance>(mSkeleton)) {
  mInstance->load();
  mShares.resize(mInstance->getNumBones());
}

SkeletonPose::~SkeletonPose() = default;

std::optional<BoneState> SkeletonPose::getState(const std::string& name) const {
  if (!mInstance->hasBone(name)) return std::nullopt;
  const Ogre::Bone& bone = *mInstance->getBone(name);
  const glm::quat rotation = toGlm(bone.getOrientation());
  return BoneState{toGlm(bone.getPosition()), rotation, toGlm(bone.getScale()), bone.isManuallyControlled(),
                   degreesBetween(toGlm(bone.getInitialOrientation()), rotation)};
}

Ogre::Bone* SkeletonPose::setManual(const std::string& name, bool manual) {
  if (!mInstance->hasBone(name)) return nullptr;
  Ogre::Bone* bone = mInstance->getBone(name);
  bone->setManuallyControlled(manual);
  return bone;
}

void SkeletonPose::show(const std::string& animation, float offset) {
  mInstance->reset(false);
  const std::string lastPart = animation.substr(animation.rfind('/') + 1);
  const std::string& name = mSkeleton->hasAnimation(animation) ? animation : lastPart;
  if (!mSkeleton->hasAnimation(name)) return;
  // OGRE lets an animation move a bone that is under manual control, too.
  for (const Ogre::Bone* bone : mInstance->getBones())
    mShares[bone->getHandle()] = bone->isManuallyControlled() ? 0.0f : 1.0f;
  Ogre::Animation& shown = *mSkeleton->getAnimation(name);
  shown.apply(mInstance.get(), offset * shown.getLength(), 1.0f, &mShares, 1.0f);
}

}
