#pragma once
#include "apps/tidemark/test/steps/Steps.h"

#include "em5/command/CommandHelper.h"

#include <optional>
#include <string>

namespace tidemark::test {

/// A unit that is to do something, and to what.
struct CommandedUnits {
  EntityReference caller;
  std::optional<EntityReference> target;
};
/// `CALLER [TARGET]`
CommandedUnits takeCommandedUnits(WordCursor& words);
/// As a click makes it. Throws NotThere for a missing entity.
em5::CommandContext makeContext(const TestSession& session, const CommandedUnits& units);
/// Throws DirectiveError for a command that nobody has declared.
em5::Command& findCommand(const std::string& name);
/// Its name, or its number if there is no such command.
std::string nameOfCommand(std::uint32_t id);

}
