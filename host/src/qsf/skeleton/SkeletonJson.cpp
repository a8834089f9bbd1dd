#include "qsf/base/JsonFile.h"
#include "qsf/math/EulerAngles.h"
#include "qsf/skeleton/SkeletonFile.h"
#include "qsf/skeleton/SkeletonLimits.h"

#include <OgreAnimation.h>
#include <OgreAnimationTrack.h>
#include <OgreBone.h>
#include <OgreKeyFrame.h>
#include <OgreSkeleton.h>

#include <cmath>

namespace qsf {

namespace {

constexpr int EULER_ORDER = 17;

Ogre::Vector3 readVector(const JsonPlace& place, const char* key, const Ogre::Vector3& missing) {
  if (!place.has(key)) return missing;
  const std::vector<float> numbers = place.member(key).asNumbers(3);
  for (const float number : numbers)
    if (!(std::abs(number) <= FARTHEST)) place.member(key).fail("a number is too large");
  return Ogre::Vector3(numbers[0], numbers[1], numbers[2]);
}

/// Three angles in degrees, as in maps.
Ogre::Quaternion readRotation(const JsonPlace& place, const Ogre::Quaternion& missing) {
  if (!place.has("rotation")) return missing;
  const Ogre::Vector3 degrees = readVector(place, "rotation", Ogre::Vector3::ZERO);
  const glm::quat rotation =
      EulerAngles::eulerToQuaternion(glm::radians(glm::vec3(degrees.x, degrees.y, degrees.z)), EULER_ORDER);
  return Ogre::Quaternion(rotation.w, rotation.x, rotation.y, rotation.z);
}

/// What to multiply a scale by to get another; 1 where it would take too much.
float scaleFactor(float from, float to) {
  const float factor = to / from;
  return std::abs(factor) <= FARTHEST ? factor : 1.0f;
}

void readBone(const JsonPlace& place, Ogre::Skeleton& skeleton) {
  place.expectObject({"name", "parent", "position", "rotation", "scale"});
  const std::string name = place.member("name").asText();
  if (skeleton.hasBone(name)) place.fail("there is a bone \"" + name + "\" already");
  if (skeleton.getNumBones() >= MOST_BONES) place.fail("a skeleton has 256 bones at most");
  Ogre::Bone* parent = nullptr;
  if (place.has("parent")) {
    const std::string parentName = place.member("parent").asText();
    if (!skeleton.hasBone(parentName))
      place.member("parent").fail("there is no bone \"" + parentName + "\" above this one");
    parent = skeleton.getBone(parentName);
  }
  Ogre::Bone& bone = *skeleton.createBone(name, skeleton.getNumBones());
  bone.setPosition(readVector(place, "position", Ogre::Vector3::ZERO));
  bone.setOrientation(readRotation(place, Ogre::Quaternion::IDENTITY));
  bone.setScale(readVector(place, "scale", Ogre::Vector3::UNIT_SCALE));
  if (parent) parent->addChild(&bone);
}

/// A file tells where a bone is at a time; OGRE wants the way from its rest pose to there.
void readKeyFrame(const JsonPlace& place, double length, const Ogre::Bone& bone, Ogre::NodeAnimationTrack& track) {
  place.expectObject({"time", "position", "rotation", "scale"});
  const double time = place.member("time").asNumber();
  if (!(time >= 0 && time <= length)) place.member("time").fail("the time is not within the animation");
  Ogre::TransformKeyFrame& frame = *track.createNodeKeyFrame(static_cast<float>(time));
  frame.setTranslate(readVector(place, "position", bone.getPosition()) - bone.getPosition());
  frame.setRotation(bone.getOrientation().UnitInverse() * readRotation(place, bone.getOrientation()));
  const Ogre::Vector3& rest = bone.getScale();
  const Ogre::Vector3 scale = readVector(place, "scale", rest);
  frame.setScale({scaleFactor(rest.x, scale.x), scaleFactor(rest.y, scale.y), scaleFactor(rest.z, scale.z)});
}

void readAnimation(const JsonPlace& place, Ogre::Skeleton& skeleton) {
  place.expectObject({"name", "length", "bones"});
  const std::string name = place.member("name").asText();
  if (skeleton.hasAnimation(name)) place.fail("there is an animation \"" + name + "\" already");
  const double length = place.member("length").asNumber();
  if (!(length > 0) || !std::isfinite(static_cast<float>(length)))
    place.member("length").fail("an animation's length is above 0 seconds");
  Ogre::Animation& animation = *skeleton.createAnimation(name, static_cast<float>(length));
  animation.setRotationInterpolationMode(Ogre::Animation::RIM_SPHERICAL);
  place.member("bones").expectObject();
  place.member("bones").eachMember([&](const std::string& boneName, const JsonPlace& frames) {
    if (!skeleton.hasBone(boneName)) frames.fail("there is no bone \"" + boneName + "\"");
    Ogre::Bone& bone = *skeleton.getBone(boneName);
    Ogre::NodeAnimationTrack& track = *animation.createNodeTrack(bone.getHandle(), &bone);
    frames.expectArray();
    for (std::size_t i = 0; i < frames.size(); ++i)
      readKeyFrame(frames.element(i), length, bone, track);
  });
}

}

void readSkeletonJson(const std::string& file, Ogre::Skeleton& skeleton) {
  const Json document = readJsonFile(file);
  const JsonPlace root(document, file);
  root.expectObject({"description", "bones", "animations"});
  const JsonPlace bones = root.member("bones");
  bones.expectArray();
  if (bones.size() == 0) bones.fail("a skeleton has a bone");
  for (std::size_t i = 0; i < bones.size(); ++i)
    readBone(bones.element(i), skeleton);
  skeleton.setBindingPose();
  if (!root.has("animations")) return;
  const JsonPlace animations = root.member("animations");
  animations.expectArray();
  for (std::size_t i = 0; i < animations.size(); ++i)
    readAnimation(animations.element(i), skeleton);
}

void readSkeletonFile(const std::string& file, Ogre::Skeleton& skeleton) {
  if (file.ends_with(".json"))
    readSkeletonJson(file, skeleton);
  else
    readSkeletonBinary(file, skeleton);
}

}
