// Expectations on the stores of scripts.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/TextMatch.h"
#include "apps/tidemark/test/steps/ScriptScope.h"
#include "apps/tidemark/test/steps/Steps.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace tidemark::test {

namespace {

using script::tooling::StoreKind;
using Ids = std::vector<std::uint64_t>;

std::string quoted(const std::vector<std::string>& texts) {
  std::string result;
  for (const std::string& text : texts)
    result += fmt::format("{}\"{}\"", result.empty() ? "" : " ", text);
  return result.empty() ? "nothing" : result;
}

std::string describe(const Ids& ids) { return ids.empty() ? "an empty list" : fmt::format("{}", fmt::join(ids, " ")); }

// The entry's place in its store and its exact name.
struct Entry {
  StoreAddress store;
  std::string name;
};

// Throws NotThere if there is no such entry.
Entry findEntry(const TestSession& session, const ScriptScope& scope, StoreKind kind, const std::string& name) {
  const StoreAddress store = locate(session, scope, kind, name);
  if (auto found = findName(session, store, name)) return {store, std::move(*found)};
  const std::vector<std::string> names = session.tooling().getNames(store.holder, kind);
  throw NotThere(fmt::format("no such entry; the {} store holds {}", store.holder ? "local" : "global", quoted(names)));
}

template <class T> T require(std::optional<T> value) {
  if (!value) throw NotThere("no such entry");
  return std::move(*value);
}

Expectation expectVariable(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the variable's name");
  const Comparison comparison = takeComparison(words);
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::VARIABLES, name);
    const float found = require(session.tooling().getVariable(entry.store.holder, entry.name));
    return Verdict{comparison.holds(found), fmt::format("{}", found), {}};
  };
  return expectation;
}

Expectation expectString(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the string variable's name");
  words.require("==");
  const std::string expected = words.take("the expected text");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::STRINGS, name);
    const std::string found = require(session.tooling().getString(entry.store.holder, entry.name));
    return Verdict{textMatches(expected, found), fmt::format("\"{}\"", found), {}};
  };
  return expectation;
}

Expectation expectBool(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the bool variable's name");
  words.require("==");
  const std::string expected = words.take("true or false");
  if (expected != "true" && expected != "false")
    throw DirectiveError(fmt::format("'{}' is neither true nor false", expected));
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::BOOLS, name);
    const bool found = require(session.tooling().getBool(entry.store.script, entry.name));
    return Verdict{found == (expected == "true"), found ? "true" : "false", {}};
  };
  return expectation;
}

// What is asked of a list's ids.
using ListTest = std::function<bool(const Ids& found, const Ids& wanted)>;

ListTest takeListTest(WordCursor& words) {
  if (words.takeIf("==")) return [](const Ids& found, const Ids& wanted) { return found == wanted; };
  if (words.takeIf("holds"))
    return [](Ids found, Ids wanted) {
      std::sort(found.begin(), found.end());
      std::sort(wanted.begin(), wanted.end());
      return found == wanted;
    };
  if (words.takeIf("contains"))
    return [](const Ids& found, const Ids& wanted) {
      return std::all_of(wanted.begin(), wanted.end(),
                         [&](std::uint64_t id) { return std::find(found.begin(), found.end(), id) != found.end(); });
    };
  if (words.takeIf("size")) {
    const std::uint64_t size = words.takeId("the list's size");
    return [size](const Ids& found, const Ids&) { return found.size() == size; };
  }
  if (words.takeIf("exists")) return [](const Ids&, const Ids&) { return true; };
  throw DirectiveError("behind a list's name stands == or holds, contains, size, exists");
}

Expectation expectList(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the list's name");
  const bool takesIds = !words.peekKeyword("size") && !words.peekKeyword("exists");
  const ListTest test = takeListTest(words);
  const std::vector<EntityReference> references =
      takesIds ? takeEntityReferences(words) : std::vector<EntityReference>();
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::LISTS, name);
    const Ids found = require(session.tooling().getList(entry.store.holder, entry.name));
    Ids wanted;
    for (const EntityReference& reference : references)
      wanted.push_back(session.resolve(reference));
    return Verdict{test(found, wanted), describe(found), {}};
  };
  return expectation;
}

Expectation expectStringList(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the string list's name");
  words.require("==");
  const std::vector<std::string> expected = words.takeRest();
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::STRING_LISTS, name);
    const auto found = require(session.tooling().getStringList(entry.store.script, entry.name));
    return Verdict{
        std::equal(expected.begin(), expected.end(), found.begin(), found.end(), textMatches), quoted(found), {}};
  };
  return expectation;
}

Expectation expectExistingJson(const ScriptScope& scope, const std::string& name) {
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    (void)findEntry(session, scope, StoreKind::JSONS, name); // throws if it is missing
    return Verdict{true, "it exists", {}};
  };
  return expectation;
}

Expectation expectJsonSize(WordCursor& words, const ScriptScope& scope, const std::string& name,
                           const std::string& path) {
  words.takeIf("==");
  const std::uint64_t size = words.takeId("the number of children");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::JSONS, name);
    const auto found = session.tooling().getJsonSize(entry.store.script, entry.name, path);
    if (!found) throw NotThere(fmt::format("nothing at '{}'", path));
    return Verdict{*found == size, fmt::format("{} children", *found), {}};
  };
  return expectation;
}

Expectation expectJson(WordCursor& words, const ScriptScope& scope) {
  const std::string name = words.take("the JSON variable's name");
  if (words.peekKeyword("exists") && words.remaining() == 1) {
    words.require("exists");
    return expectExistingJson(scope, name);
  }
  const std::string path = takeJsonPath(words);
  if (words.takeIf("size")) return expectJsonSize(words, scope, name, path);
  words.require("==");
  const std::string expected = words.take("the expected text");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const Entry entry = findEntry(session, scope, StoreKind::JSONS, name);
    auto found = session.tooling().getJson(entry.store.script, entry.name, path);
    if (const auto parent = jsonPathBeforeSize(path); !found && parent) // no member is called `size`
      if (const auto size = session.tooling().getJsonSize(entry.store.script, entry.name, *parent))
        found = std::to_string(*size);
    if (!found) throw NotThere(fmt::format("nothing at '{}'", path));
    return Verdict{textMatches(expected, *found), fmt::format("\"{}\"", *found), {}};
  };
  return expectation;
}

StoreKind takeKind(WordCursor& words) {
  const std::string word = words.take("variable, string, bool, list, strings or json");
  if (word == "variable") return StoreKind::VARIABLES;
  if (word == "string") return StoreKind::STRINGS;
  if (word == "bool") return StoreKind::BOOLS;
  if (word == "list") return StoreKind::LISTS;
  if (word == "strings") return StoreKind::STRING_LISTS;
  if (word == "json") return StoreKind::JSONS;
  throw DirectiveError(fmt::format("'{}' behind 'no' is none of variable, string, bool, list, strings, json", word));
}

Expectation expectNoEntry(WordCursor& words, const ScriptScope& scope) {
  const StoreKind kind = takeKind(words);
  const std::string name = words.take("a name");
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const bool exists = findName(session, locate(session, scope, kind, name), name).has_value();
    return Verdict{!exists, exists ? "there is such an entry" : "no such entry", {}};
  };
  return expectation;
}

Expectation expectStore(WordCursor& words, const ScriptScope& scope) {
  const std::string word = words.take("a store's name");
  static const std::vector<std::pair<std::string_view, StoreKind>> STORES = {
      {"variables", StoreKind::VARIABLES}, {"strings", StoreKind::STRINGS}, {"bools", StoreKind::BOOLS},
      {"lists", StoreKind::LISTS},         {"jsons", StoreKind::JSONS},     {"stringlists", StoreKind::STRING_LISTS}};
  const auto store = std::find_if(STORES.begin(), STORES.end(), [&](const auto& row) { return row.first == word; });
  if (store == STORES.end())
    throw DirectiveError(fmt::format("'{}' is none of variables, strings, bools, lists, jsons, stringlists", word));
  const StoreKind kind = store->second;
  words.require("==");
  const std::vector<std::string> expected = words.takeRest();
  Expectation expectation;
  expectation.check = [=](TestSession& session) {
    const auto found = session.tooling().getNames(session.findScript(scope.script), kind);
    return Verdict{
        std::equal(expected.begin(), expected.end(), found.begin(), found.end(), textMatches), quoted(found), {}};
  };
  return expectation;
}

}

std::optional<Expectation> readStoreExpectation(WordCursor& words) {
  using Reader = Expectation (*)(WordCursor&, const ScriptScope&);
  static const std::vector<std::pair<std::string_view, Reader>> READERS = {
      {"variable", expectVariable},  {"string", expectString}, {"bool", expectBool},  {"list", expectList},
      {"strings", expectStringList}, {"json", expectJson},     {"no", expectNoEntry}, {"store", expectStore},
  };
  for (const auto& [keyword, reader] : READERS) {
    if (!peekScoped(words, {keyword})) continue;
    const ScriptScope scope = takeScope(words);
    words.require(keyword);
    return reader(words, scope);
  }
  return std::nullopt;
}

}
