#include "game_plugin/scenario/world/PlayerLog.h"

#include "game_plugin/component/MP_LOG_COMPONENT.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include "qsf/map/Map.h"

namespace script {

void writeToPlayerLog(const std::string& text) {
  qsf::Entity* core = findEntity(qsf::Map::CORE_ENTITY_ID);
  qsf::Component* log = core ? core->getOrCreateComponentById(MP_LOG_COMPONENT::COMPONENT_ID) : nullptr;
  if (log) log->setPropertyByString("Incoming Message", text);
}

}
