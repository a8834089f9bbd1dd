#include "game_plugin/scenario/language/ParameterReaders.h"
#include "game_plugin/scenario/shared/ListOut.h"

#include "em5/map/EntityHelper.h"

namespace script {

struct HasParentCondition : DefaultCondition {
  Argument entitiesToCheck;
  Argument checkedEntities;
};

static void read(HasParentCondition& condition, const Tokens& tokens) {
  condition.entitiesToCheck =
      readStringParameter(tokens, 1, "EntityList", "EntitiesToCheck[in]", "Units which are checked");
  condition.checkedEntities =
      readStringParameter(tokens, 2, "EntityListOut", "CheckedEntities[out]", "All entities which have a parent");
}

/// Kept: the in list is read again after the out list was cleared, so this condition can't filter in place. With one
/// list for both it empties the list and fails, and scripts rely on that.
static bool test(const HasParentCondition& condition, ScenarioHandler& handler) {
  handler.GetEntityListSize(condition.entitiesToCheck); // the first read, by which a missing list comes to life
  handler.ClearEntityList(condition.checkedEntities);
  forEachEntity(handler, condition.entitiesToCheck, [&](qsf::Entity& entity) {
    if (em5::EntityHelper(entity).getParentEntity()) handler.AddToEntityList(condition.checkedEntities, entity.getId());
  });
  return handler.GetEntityListSize(condition.checkedEntities) != 0;
}

CONDITION(HasParent, "Units", "True if at least one entity has a parent entity")

}
