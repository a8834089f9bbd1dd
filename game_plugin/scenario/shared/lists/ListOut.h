#pragma once
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"
#include "game_plugin/scenario/world/WorldHints.h"

namespace script {

/// Copies the in list, clears the out list and adds each id whose entity exists and passes the test. As the in list is
/// copied first, both may be the same list, which is then filtered in place.
template <class Test>
void writePassingToList(ScenarioHandler& handler, const Argument& in, const Argument& out, Test&& passes) {
  if (hints::isOn()) hintLiteralIds(in);
  const EntityIds ids = handler.ResolveEntityList(in);
  handler.ClearEntityList(out);
  for (const std::uint64_t id : ids)
    if (qsf::Entity* entity = findEntity(id); entity && passes(*entity)) handler.AddToEntityList(out, id);
}

/// The list-out convention: writePassingToList, and the answer whether the out list holds anything. The out list exists
/// afterwards, also if nothing passed.
template <class Test>
bool filterIntoList(ScenarioHandler& handler, const Argument& in, const Argument& out, Test&& passes) {
  writePassingToList(handler, in, out, std::forward<Test>(passes));
  return handler.getEntityListSize(out) != 0;
}

/// Calls `act(entity)` for each id of the list argument that has an entity, walking a private copy.
template <class Act> void forEachEntity(ScenarioHandler& handler, const Argument& list, Act&& act) {
  if (hints::isOn()) hintLiteralIds(list);
  const EntityIds ids = handler.ResolveEntityList(list);
  for (const std::uint64_t id : ids)
    if (qsf::Entity* entity = findEntity(id)) act(*entity);
}

}
