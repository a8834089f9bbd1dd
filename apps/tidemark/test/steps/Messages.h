#pragma once
#include "apps/tidemark/test/TestSession.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tidemark::test {

/// The id of an entity, or the hash of a text, as ids of commands are.
std::uint64_t resolveFilter(const TestSession& session, std::string_view text);
std::vector<std::uint64_t> resolveFilters(const TestSession& session, const std::vector<std::string>& texts);

/// Throws DirectiveError for a message that nobody could send: a slip of the keyboard, which `never` would hide.
void requireMessage(const TestSession& session, const std::string& name);
/// The same for what a test sends: its own messages are known, those of the game have to be some.
void requireGameMessage(const TestSession& session, const std::string& name);

}
