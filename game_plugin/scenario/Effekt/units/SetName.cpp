#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/message/MessageSystem.h"

namespace script {

struct SetNameEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The game is told that the selection has changed, also if the list is empty.",
  };

  Argument unitName;
  Argument entityList;
};

static void read(SetNameEffect& effect, ParameterReader& in) {
  effect.unitName = in.text(1, "Standart", "UnitName", "The new name");
  effect.entityList = in.list(2, "no_list", "EntityList", "Entities that get it");
}

static void run(const SetNameEffect& effect, ScenarioHandler& handler) {
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    if (auto* metadata = entity.getComponent<qsf::MetadataComponent>())
      metadata->setName(handler.ResolveString(effect.unitName));
  });
  // The interface shows the names of what is selected and reads them anew at this message.
  qsf::Qsf::instance()->getMessageSystem().emitMessage(qsf::MessageConfiguration(em5::Messages::EM5_CHANGE_SELECTION));
}

EFFECT(SetName, "Units", "Gives entities a name")

}
