#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/bones/BoneControl.h"

namespace script {

struct SetBoneToOriginEffect : DefaultEffect {
  Argument entityList;
  Argument boneName;
  bool resetPosition = true;
  bool resetRotation = true;
};

static void read(SetBoneToOriginEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "EntityList", "EntityList", "List of affected entities");
  effect.boneName = in.text(2, "Master_Bone", "BoneName", "Name of the affected Bone");
  effect.resetPosition = in.flag(3, true, "ResetPosition", "");
  effect.resetRotation = in.flag(4, true, "ResetRotation", "");
}

static void run(const SetBoneToOriginEffect& effect, ScenarioHandler& handler) {
  for (Ogre::Bone* bone : collectBones(handler, effect.entityList, effect.boneName)) {
    if (effect.resetRotation) resetBoneRotation(*bone);
    if (effect.resetPosition) resetBonePosition(*bone);
  }
}

EFFECT(SetBoneToOrigin, "Bones", "Resets the transformation of the bone (but not the scale)")

}
