#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct HasParentCondition : DefaultCondition {
  static constexpr std::string_view ODDITIES[] = {
      "With one list as EntitiesToCheck[in] and CheckedEntities[out] it empties the list and fails, since the in list "
      "is read again after the out list was emptied.",
  };

  Argument entitiesToCheck;
  Argument checkedEntities;
};

static void read(HasParentCondition& condition, ParameterReader& in) {
  condition.entitiesToCheck = in.list(1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      in.listOut(2, "EntityListOut", "CheckedEntities[out]", "All entities which have a parent");
}

static bool test(const HasParentCondition& condition, ScenarioHandler& handler) {
  handler.getEntityListSize(condition.entitiesToCheck); // the first read, by which a missing list comes to life
  handler.ClearEntityList(condition.checkedEntities);
  forEachEntity(handler, condition.entitiesToCheck, [&](qsf::Entity& entity) {
    if (em5::EntityHelper(entity).getParentEntity()) handler.AddToEntityList(condition.checkedEntities, entity.getId());
  });
  return handler.getEntityListSize(condition.checkedEntities) != 0;
}

CONDITION(HasParent, "Units", "True if at least one entity has a parent entity")

}
