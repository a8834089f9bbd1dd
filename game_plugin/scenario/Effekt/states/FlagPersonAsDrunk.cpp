#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/component/PersonComponent.h"

namespace script {

struct FlagPersonAsDrunkEffect : DefaultEffect {
  Argument entityList;
  bool isDrunken = true;
};

static void read(FlagPersonAsDrunkEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Persons; whoever is none becomes one");
  effect.isDrunken = in.flag(2, true, "IsDrunken", "false makes them sober");
}

static void run(const FlagPersonAsDrunkEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    entity.getOrCreateComponent<em5::PersonComponent>()->setPersonFlags(em5::PersonComponent::PERSON_FLAG_DRUNK,
                                                                        effect.isDrunken);
  });
}

EFFECT(FlagPersonAsDrunk, "Units", "Makes persons drunk or sober")

}
