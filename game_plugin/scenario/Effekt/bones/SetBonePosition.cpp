#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/bones/BoneControl.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

namespace script {

struct SetBonePositionEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without a vector the bone goes to its parent's origin.",
      "A vector that isn't of three parts leaves the bone where it is, but under manual control.",
  };

  Argument entityList;
  Argument boneName;
  Argument vector;
  bool relative = false;
};

static void read(SetBonePositionEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "EntityList", "EntityList", "List of affected entities");
  effect.boneName = in.text(2, "Master_Bone", "BoneName", "Name of the affected Bone");
  effect.vector = in.vector(3, "0 0 0", "vector (xyz)", "Vector in xyz space");
  effect.relative = in.flag(4, false, "RelativPosition", "True = relativ position and false is the absolute position");
}

static void run(const SetBonePositionEffect& effect, ScenarioHandler& handler) {
  for (Ogre::Bone* bone : collectBones(handler, effect.entityList, effect.boneName))
    if (const std::optional<glm::vec3> vector = splitVector(handler, effect.vector))
      effect.relative ? moveBone(*bone, *vector) : setBonePosition(*bone, *vector);
}

EFFECT(SetBonePosition, "Bones", "Sets the position")

}
