#include "game_plugin/scenario/shared/bones/BoneControl.h"

#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "qsf/component/MeshAnimationComponent.h"

#include <OgreBone.h>

namespace script {

namespace {

Ogre::Vector3 toOgre(const glm::vec3& vector) { return {vector.x, vector.y, vector.z}; }
Ogre::Quaternion toOgre(const glm::quat& rotation) { return {rotation.w, rotation.x, rotation.y, rotation.z}; }

void setPosition(Ogre::Bone& bone, const Ogre::Vector3& position) {
  if (!position.isNaN()) bone.setPosition(position);
}

}

std::vector<Ogre::Bone*> collectBones(ScenarioHandler& handler, const Argument& list, const Argument& boneName) {
  std::vector<Ogre::Bone*> bones;
  const std::string name = handler.ResolveString(boneName);
  forEachEntity(handler, list, [&](qsf::Entity& entity) {
    auto* animation = entity.getOrCreateComponent<qsf::MeshAnimationComponent>();
    if (Ogre::Bone* bone = animation->manualBoneControl(name, true, nullptr)) bones.push_back(bone);
  });
  return bones;
}

void setBonePosition(Ogre::Bone& bone, const glm::vec3& position) { setPosition(bone, toOgre(position)); }

void moveBone(Ogre::Bone& bone, const glm::vec3& way) { setPosition(bone, toOgre(way) + bone.getPosition()); }

void setBoneRotation(Ogre::Bone& bone, const glm::quat& rotation) {
  if (const Ogre::Quaternion orientation = toOgre(rotation); !orientation.isNaN()) bone.setOrientation(orientation);
}

void turnBone(Ogre::Bone& bone, const glm::quat& rotation) {
  Ogre::Quaternion orientation = bone.getOrientation() * toOgre(rotation);
  orientation.normalise();
  if (!orientation.isNaN()) bone.setOrientation(orientation);
}

void setBoneScale(Ogre::Bone& bone, const glm::vec3& scale) {
  if (const Ogre::Vector3 size = toOgre(scale); !size.isNaN()) bone.setScale(size);
}

void resetBonePosition(Ogre::Bone& bone) { bone.setPosition(bone.getInitialPosition()); }

void resetBoneRotation(Ogre::Bone& bone) { bone.setOrientation(bone.getInitialOrientation()); }

}
