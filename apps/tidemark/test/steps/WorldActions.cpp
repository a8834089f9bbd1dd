// Actions on entities, the selection and messages.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Selection.h"
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"

#include <fmt/format.h>

#include <array>

namespace tidemark::test {

namespace {

constexpr std::size_t NUMBER_OF_FILTERS = 3;

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

// A filter is a number, an entity of a list, or a text that stands for its hash, as ids of commands do.
Action emitMessage(WordCursor& words) {
  const std::string message = words.take("the message's name");
  const std::vector<std::string> filters = words.takeRest();
  if (filters.size() > NUMBER_OF_FILTERS) throw DirectiveError("a message has up to three filters");
  return [=](TestSession& session) {
    std::array<std::uint64_t, NUMBER_OF_FILTERS> values{qsf::UNINITIALIZED_ID, qsf::UNINITIALIZED_ID,
                                                        qsf::UNINITIALIZED_ID};
    for (std::size_t i = 0; i < filters.size(); ++i) {
      const auto reference = parseEntityReference(filters[i]);
      values[i] = reference ? session.resolve(*reference) : qsf::StringHash(filters[i]).getHash();
    }
    session.host().getQsf().getMessageSystem().emitMessage(
        qsf::MessageConfiguration(qsf::StringHash(message), values[0], values[1], values[2]));
  };
}

}

std::optional<Action> readWorldAction(WordCursor& words) {
  if (words.takeIf("select")) return select(words);
  if (words.takeIf("destroy")) return destroy(words);
  if (words.takeIf("emit")) return emitMessage(words);
  if (words.takeIf("set")) return readSetDirective(words);
  return std::nullopt;
}

}
