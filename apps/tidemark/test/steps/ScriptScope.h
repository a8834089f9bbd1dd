#pragma once
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/directives/Words.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace tidemark::test {

/// Words in front of a store's or trigger's name: `in SCRIPT`, or nothing for `main`.
struct ScriptScope {
  std::string script = "main";
};

/// True if behind an optional `in SCRIPT` one of the keywords stands.
bool peekScoped(const WordCursor& words, std::initializer_list<std::string_view> keywords);
ScriptScope takeScope(WordCursor& words);

/// A store as the module addresses it. The global one holds the names with the global mark.
struct StoreAddress {
  std::size_t script;                ///< of the scope
  std::optional<std::size_t> holder; ///< nothing: the global store
  script::tooling::StoreKind kind;
};

/// Where that name is kept. Bools, JSON trees and string lists are local whatever their name holds. Throws NotThere for
/// an unknown script.
StoreAddress locate(const TestSession& session, const ScriptScope& scope, script::tooling::StoreKind kind,
                    const std::string& name);
/// The name as the store writes it; a `§` of the directive matches either encoding. Nothing without such an entry.
std::optional<std::string> findName(const TestSession& session, const StoreAddress& store, const std::string& name);
/// Ids of a list of main; nothing without such an entry.
std::optional<std::vector<std::uint64_t>> findList(const TestSession& session, const std::string& name);

}
