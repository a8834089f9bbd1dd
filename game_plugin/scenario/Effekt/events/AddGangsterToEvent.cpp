#include "game_plugin/scenario/language/Vocabulary.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/RememberedHash.h"

#include "em5/component/EventIdComponent.h"
#include "em5/component/PersonComponent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/logic/GangsterLogic.h"
#include "em5/map/EntityHelper.h"
#include "em5/plugin/Plugin.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/logic/GameLogicComponent.h"

namespace script {

struct AddGangsterToEventEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The unique id is not looked at: the gangster joins the newest event of the game, whoever started it, or none.",
  };

  Argument entityList;
  Argument gangsterType;
  bool addToLastEvent = true;
};

static void read(AddGangsterToEventEffect& effect, ParameterReader& in) {
  in.unused(1, "-1", "UniqueId", "");
  effect.entityList = in.list(2, "empty_list", "EntityList", "the name of the entityList, which should be affected");
  effect.gangsterType = in.words(3, "em5::GangsterArsonist", "GangsterType",
                                 "which type of gangster you want to have. See em5::GangsterBaseLogic for more Infos. "
                                 "Standart is em5::GangsterArsonist",
                                 gangsterLogicWords());
  effect.addToLastEvent = in.flag(4, true, "AddToLastEvent", "If true it will be added to the last triggered event");
}

static void joinLastEvent(qsf::Entity& gangster) {
  constexpr int GANGSTER = 7;
  const em5::Plugin* game = em5::Plugin::getInstance();
  const em5::FreeplayEvent* event = game ? game->getFreeplaySystem().getEventManager().getLastEvent() : nullptr;
  if (event) gangster.getOrCreateComponent<em5::EventIdComponent>()->setEvent(*event, GANGSTER);
}

static void run(const AddGangsterToEventEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& person) {
    const em5::EntityHelper helper(person);
    if (!helper.isCivilPersonInValidState()) return;
    person.getOrCreateComponent<qsf::ActionComponent>()->clearPlan();
    auto* logics = person.getOrCreateComponent<qsf::GameLogicComponent>();
    if (auto* logic = logics->getGameLogic<em5::GangsterBaseLogic>()) logic->setAsGangsterFlagged(true);
    helper.turnIntoGangster(rememberedHash(handler.ResolveString(effect.gangsterType)), false);
    person.getComponent<em5::PersonComponent>()->setGangsterFlag(true);
    if (effect.addToLastEvent) joinLastEvent(person);
  });
}

EFFECT(AddGangsterToEvent, "Events", "Adds a gangster of the given type")

}
