#pragma once
#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include <boost/algorithm/string/case_conv.hpp>

namespace script {

/// The text of a string argument in capitals, by which icons and bars are looked up.
inline std::string resolveInCapitals(ScenarioHandler& handler, const Argument& text) {
  return boost::algorithm::to_upper_copy(handler.ResolveString(text));
}

/// Calls `act(entity)` for the entities of a list argument. An id without one is logged, always in the words of
/// SetStatusIcon, which scripts' authors search for.
template <class Act> void forEachOverlaidEntity(ScenarioHandler& handler, const Argument& list, Act&& act) {
  for (const std::uint64_t id : handler.ResolveEntityList(list)) {
    if (qsf::Entity* entity = findEntity(id))
      act(*entity);
    else
      logError("SetStatusIconEffect::EntityList did not found " + std::to_string(id));
  }
}

}
