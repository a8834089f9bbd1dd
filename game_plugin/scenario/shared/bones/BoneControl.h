#pragma once
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <vector>

namespace Ogre {
class Bone;
}

namespace script {

/// The bones of that name, a string argument, of all entities of a list. They are under manual control from then on. An
/// entity gets a qsf::MeshAnimationComponent if it has none; one whose skeleton lacks the bone adds nothing.
std::vector<Ogre::Bone*> collectBones(ScenarioHandler& handler, const Argument& list, const Argument& boneName);

/// What a bone is told, relative to its parent. A value that is no number, in one of its parts, leaves the bone as it
/// is: OGRE would end the process over it.
void setBonePosition(Ogre::Bone& bone, const glm::vec3& position);
void moveBone(Ogre::Bone& bone, const glm::vec3& way);
void setBoneRotation(Ogre::Bone& bone, const glm::quat& rotation);
/// Turns it further, about its own axes.
void turnBone(Ogre::Bone& bone, const glm::quat& rotation);
void setBoneScale(Ogre::Bone& bone, const glm::vec3& scale);
void resetBonePosition(Ogre::Bone& bone);
void resetBoneRotation(Ogre::Bone& bone);

}
