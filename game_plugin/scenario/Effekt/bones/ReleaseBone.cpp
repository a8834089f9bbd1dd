#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

#include "qsf/component/MeshAnimationComponent.h"

namespace script {

struct ReleaseBoneEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The bone's name is taken as it stands: svar(name) is no reference here and releases nothing.",
  };

  Argument entityList;
  Argument boneName;
};

static void read(ReleaseBoneEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "EntityList", "EntityList", "List of affected entities");
  effect.boneName = in.raw(2, "Master_Bone", "BoneName", "Name of the affected Bone");
}

static void run(const ReleaseBoneEffect& effect, ScenarioHandler& handler) {
  const std::string name(effect.boneName.text());
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    entity.getOrCreateComponent<qsf::MeshAnimationComponent>()->manualBoneControl(name, false, nullptr);
  });
}

EFFECT(ReleaseBone, "Bones",
       "Releases the bone from manual control and makes it possible for Animations to use this bone again")

}
