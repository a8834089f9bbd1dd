#include "apps/tidemark/test/steps/Commands.h"
#include "apps/tidemark/test/TestSession.h"

#include <fmt/format.h>

namespace tidemark::test {

CommandedUnits takeCommandedUnits(WordCursor& words) {
  CommandedUnits units;
  units.caller = takeEntityReference(words);
  if (!words.atEnd()) units.target = takeEntityReference(words);
  return units;
}

em5::CommandContext makeContext(const TestSession& session, const CommandedUnits& units) {
  qsf::Entity* target = units.target ? &session.findEntity(session.resolve(*units.target)) : nullptr;
  return em5::CommandHelper::makeContext(session.findEntity(session.resolve(units.caller)), target);
}

em5::Command& findCommand(const std::string& name) {
  if (em5::Command* command = em5::CommandHelper::findCommand(qsf::StringHash(name))) return *command;
  throw DirectiveError(fmt::format("there is no command '{}'", name));
}

std::string nameOfCommand(std::uint32_t id) {
  const em5::Command* command = em5::CommandHelper::findCommand(qsf::StringHash(id));
  return command ? command->getName() : std::to_string(id);
}

}
