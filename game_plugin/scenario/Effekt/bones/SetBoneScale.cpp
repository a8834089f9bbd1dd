#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/bones/BoneControl.h"
#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

namespace script {

struct SetBoneScaleEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Without a vector the bone is scaled to nothing.",
      "A vector that isn't of three parts leaves the bone where it is, but under manual control.",
  };

  Argument entityList;
  Argument boneName;
  Argument vector;
};

static void read(SetBoneScaleEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "EntityList", "EntityList", "List of affected entities");
  effect.boneName = in.text(2, "Master_Bone", "BoneName", "Name of the affected Bone");
  effect.vector = in.vector(3, "0 0 0", "vector (xyz)", "Vector in xyz space");
}

static void run(const SetBoneScaleEffect& effect, ScenarioHandler& handler) {
  for (Ogre::Bone* bone : collectBones(handler, effect.entityList, effect.boneName))
    if (const std::optional<glm::vec3> vector = splitVector(handler, effect.vector)) setBoneScale(*bone, *vector);
}

EFFECT(SetBoneScale, "Bones", "Scales the bone")

}
