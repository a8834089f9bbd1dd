// Actions on entities and the selection.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Selection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace tidemark::test {

namespace {

Action select(WordCursor& words) {
  const std::vector<EntityReference> references = takeEntityReferences(words);
  return [references](TestSession& session) {
    std::set<std::uint64_t> ids;
    for (const EntityReference& reference : references)
      ids.insert(session.findEntity(session.resolve(reference)).getId());
    setSelection(ids);
  };
}

Action destroy(WordCursor& words) {
  const EntityReference reference = takeEntityReference(words);
  return [reference](TestSession& session) {
    session.host().getQsf().getMainMap().destroyObjectById(session.findEntity(session.resolve(reference)).getId());
  };
}

}

std::optional<Action> readWorldAction(WordCursor& words) {
  if (words.takeIf("select")) return select(words);
  if (words.takeIf("destroy")) return destroy(words);
  if (words.takeIf("set")) return readSetDirective(words);
  return std::nullopt;
}

}
