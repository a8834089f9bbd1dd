#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/base/Messages.h"
#include "qsf/Qsf.h"
#include "qsf/component/MetadataComponent.h"
#include "qsf/message/MessageSystem.h"

namespace script {

struct SetNameEffect : DefaultEffect {
  Argument unitName;
  Argument entityList;
};

static void read(SetNameEffect& effect, const Tokens& tokens) {
  effect.unitName = readStringParameter(tokens, 1, "Standart", "UnitName", "The new name");
  effect.entityList = readStringParameter(tokens, 2, "no_list", "EntityList", "Entities that get it");
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
