#include "apps/tidemark/test/steps/ScriptScope.h"

#include "apps/tidemark/test/directives/TextMatch.h"

#include <algorithm>

namespace tidemark::test {

using script::tooling::StoreKind;

bool peekScoped(const WordCursor& words, std::initializer_list<std::string_view> keywords) {
  const std::size_t ahead = words.peekKeyword("in") ? 2 : 0;
  return std::any_of(keywords.begin(), keywords.end(),
                     [&](std::string_view keyword) { return words.peekKeyword(keyword, ahead); });
}

ScriptScope takeScope(WordCursor& words) {
  if (!words.takeIf("in")) return {};
  return {words.take("a script's name behind 'in'")};
}

StoreAddress locate(const TestSession& session, const ScriptScope& scope, StoreKind kind, const std::string& name) {
  const bool hasGlobalForm = kind == StoreKind::VARIABLES || kind == StoreKind::STRINGS || kind == StoreKind::LISTS;
  const bool global = hasGlobalForm && holdsGlobalMark(name);
  StoreAddress address{0, std::nullopt, kind};
  // A global entry can be read while no script of the test runs.
  if (!global || scope.script != "main") {
    address.script = session.findScript(scope.script);
    if (!global) address.holder = address.script;
  }
  return address;
}

std::optional<std::string> findName(const TestSession& session, const StoreAddress& store, const std::string& name) {
  for (std::string& candidate : session.tooling().getNames(store.holder, store.kind))
    if (textMatches(name, candidate)) return std::move(candidate);
  return std::nullopt;
}

std::optional<std::vector<std::uint64_t>> findList(const TestSession& session, const std::string& name) {
  const StoreAddress store = locate(session, {}, StoreKind::LISTS, name);
  const auto entry = findName(session, store, name);
  return entry ? session.tooling().getList(store.holder, *entry) : std::nullopt;
}

}
