#include "qsf/skeleton/SkeletonPose.h"

#include <OgreAnimation.h>
#include <OgreBone.h>
#include <OgreSkeletonInstance.h>

namespace qsf {

SkeletonPose::SkeletonPose(std::shared_ptr<Ogre::Skeleton> skeleton)
    : mSkeleton(std::move(skeleton)), mInstance(std::make_unique<Ogre::SkeletonInstance>(mSkeleton)) {
  mInstance->load();
  mShares.resize(mInstance->getNumBones());
}

SkeletonPose::~SkeletonPose() = default;

Ogre::Bone* SkeletonPose::findBone(const std::string& name) const {
  return mInstance->hasBone(name) ? mInstance->getBone(name) : nullptr;
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
