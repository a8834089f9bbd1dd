#pragma once
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/map/EntityHelper.h"

namespace script {

/// Parameters and test that the two conditions on the state of squad units share.
struct SquadUnitInValidStateCondition : DefaultCondition {
  Argument entityList;
  Argument entityListOut;
};

inline void readLists(SquadUnitInValidStateCondition& condition, ParameterReader& in) {
  condition.entityList = in.list(1, "EntitiesToCheck", "EntityList", "EntityList which should be checked");
  condition.entityListOut = in.listOut(
      2, "no_list", "EntityListOut",
      "All the entities which passed the checks are written to this list. Notice that the list is cleared before. BUT "
      "EntityList and EntityList[out] can be the same - this will remove units that dont match this criteria");
}

inline bool filterSquadPersonsInValidState(const SquadUnitInValidStateCondition& condition, ScenarioHandler& handler) {
  return filterIntoList(handler, condition.entityList, condition.entityListOut,
                        [](qsf::Entity& entity) { return em5::EntityHelper(entity).isSquadPersonInValidState(); });
}

}
