#include "apps/tidemark/test/steps/Messages.h"

#include "apps/tidemark/test/steps/KnownNames.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/base/NearNames.h"
#include "qsf/base/StringHash.h"
#include "qsf/message/MessageSystem.h"

#include <fmt/format.h>

#include <set>

namespace tidemark::test {

namespace {

constexpr std::string_view GAME_MESSAGES = "em5::Messages::";

[[noreturn]] void throwUnknown(const std::set<std::string>& known, const std::string& name) {
  throw DirectiveError(fmt::format("nobody knows a message '{}'{}", name,
                                   qsf::nearNamesHint(name, std::vector<std::string>(known.begin(), known.end()))));
}

}

std::uint64_t resolveFilter(const TestSession& session, std::string_view text) {
  const auto reference = parseEntityReference(text);
  return reference ? session.resolve(*reference) : qsf::StringHash(text).getHash();
}

std::vector<std::uint64_t> resolveFilters(const TestSession& session, const std::vector<std::string>& texts) {
  std::vector<std::uint64_t> filters;
  for (const std::string& text : texts)
    filters.push_back(resolveFilter(session, text));
  return filters;
}

void requireMessage(const TestSession& session, const std::string& name) {
  const qsf::MessageSystem& messages = session.host().getQsf().getMessageSystem();
  const std::set<std::string>& known = messages.getMessageNames();
  if (known.contains(name) || messages.getEmittedCount(qsf::StringHash(name)) > 0 ||
      isWordOfActions(session.plan(), "emit", 1, name) || isWrittenInScripts(session.plan(), name))
    return;
  throwUnknown(known, name);
}

void requireGameMessage(const TestSession& session, const std::string& name) {
  const std::set<std::string>& known = session.host().getQsf().getMessageSystem().getMessageNames();
  if (name.starts_with(GAME_MESSAGES) && !known.contains(name)) throwUnknown(known, name);
}

}
