#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/bones/BoneControl.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

#include "qsf/math/EulerAngles.h"

namespace script {

struct SetBoneRotationEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The angles are radians, the heading first.",
      "A vector that isn't of three parts leaves the bone where it is, but under manual control.",
  };

  Argument entityList;
  Argument boneName;
  Argument vector;
};

static void read(SetBoneRotationEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "EntityList", "EntityList", "List of affected entities");
  effect.boneName = in.text(2, "Master_Bone", "BoneName", "Name of the affected Bone");
  effect.vector = in.vector(3, "0 0 0", "vector (xyz)", "Vector in xyz space");
}

static void run(const SetBoneRotationEffect& effect, ScenarioHandler& handler) {
  for (Ogre::Bone* bone : collectBones(handler, effect.entityList, effect.boneName))
    if (const std::optional<glm::vec3> vector = splitVector(handler, effect.vector))
      setBoneRotation(*bone, qsf::EulerAngles::eulerToQuaternion(*vector, EULER_ORDER));
}

EFFECT(SetBoneRotation, "Bones", "Sets the rotation")

}
