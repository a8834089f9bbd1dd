// Actions that set entries of a script's stores.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/ScriptScope.h"
#include "apps/tidemark/test/steps/Steps.h"
#include "apps/tidemark/text/Encoding.h"

#include "qsf/asset/AssetProxy.h"

#include <fmt/format.h>

namespace tidemark::test {

namespace {

using script::tooling::StoreKind;
using Holder = std::optional<std::size_t>; // nothing: the global store

// The name that the entry has or will have: an existing one keeps its spelling, a new one is spelled in the script's
// encoding.
std::string spell(const TestSession& session, const ScriptScope& scope, StoreKind kind, const std::string& name) {
  if (auto existing = findName(session, locate(session, scope, kind, name), name)) return std::move(*existing);
  return session.plan().encoding == TestPlan::Encoding::CODE_PAGE_1252 ? convertToCodePage1252(name) : name;
}

void requireRunning(bool set, const ScriptScope& scope) {
  if (!set) throw NotThere(fmt::format("script '{}' doesn't run", scope.script));
}

// A global entry needs no script.
template <class Set> Action setEntry(const ScriptScope& scope, StoreKind kind, const std::string& name, Set set) {
  return [=](TestSession& session) {
    const StoreAddress store = locate(session, scope, kind, name);
    requireRunning(set(session, store.holder, spell(session, scope, kind, name)), scope);
  };
}

Action setVariable(WordCursor& words, const ScriptScope& scope, const std::string& name) {
  const auto value = static_cast<float>(words.takeNumber("the variable's value"));
  return setEntry(scope, StoreKind::VARIABLES, name,
                  [value](TestSession& session, Holder holder, const std::string& entry) {
                    return session.tooling().setVariable(holder, entry, value);
                  });
}

Action setString(WordCursor& words, const ScriptScope& scope, const std::string& name) {
  const std::string value = words.take("the text");
  return setEntry(scope, StoreKind::STRINGS, name,
                  [value](TestSession& session, Holder holder, const std::string& entry) {
                    return session.tooling().setString(holder, entry, value);
                  });
}

Action setBool(WordCursor& words, const ScriptScope& scope, const std::string& name) {
  const std::string value = words.take("true or false");
  if (value != "true" && value != "false") throw DirectiveError(fmt::format("'{}' is neither true nor false", value));
  return setEntry(scope, StoreKind::BOOLS, name,
                  [value](TestSession& session, Holder holder, const std::string& entry) {
                    return session.tooling().setBool(*holder, entry, value == "true");
                  });
}

Action setList(WordCursor& words, const ScriptScope& scope, const std::string& name) {
  const std::vector<EntityReference> references = takeEntityReferences(words);
  return setEntry(scope, StoreKind::LISTS, name,
                  [references](TestSession& session, Holder holder, const std::string& entry) {
                    std::vector<std::uint64_t> ids;
                    for (const EntityReference& reference : references)
                      ids.push_back(session.resolve(reference));
                    return session.tooling().setList(holder, entry, ids);
                  });
}

// `assetid STRING NAME`: the asset's global id, as scripts find it in a property, into a string variable of main.
Action setAssetId(WordCursor& words) {
  const std::string name = words.take("the string variable's name");
  const std::string asset = words.take("the asset's name");
  return setEntry({}, StoreKind::STRINGS, name, [asset](TestSession& session, Holder holder, const std::string& entry) {
    const qsf::AssetProxy proxy(asset);
    if (!proxy.getAsset()) throw DirectiveError(fmt::format("there is no asset '{}'", asset));
    return session.tooling().setString(holder, entry, fmt::format("{}", proxy.getGlobalAssetId()));
  });
}

}

std::optional<Action> readStoreAction(WordCursor& words) {
  if (words.takeIf("assetid")) return setAssetId(words);
  using Reader = Action (*)(WordCursor&, const ScriptScope&, const std::string&);
  static const std::vector<std::pair<std::string_view, Reader>> READERS = {
      {"variable", setVariable}, {"string", setString}, {"bool", setBool}, {"list", setList}};
  for (const auto& [keyword, reader] : READERS) {
    if (!peekScoped(words, {keyword})) continue;
    const ScriptScope scope = takeScope(words);
    words.require(keyword);
    const std::string name = words.take("a name");
    words.require("=");
    return reader(words, scope, name);
  }
  return std::nullopt;
}

}
