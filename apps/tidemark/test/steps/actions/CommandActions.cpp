// Actions that command units as a player does.
#include "apps/tidemark/test/TestSession.h"
#include "apps/tidemark/test/steps/Commands.h"
#include "apps/tidemark/test/steps/Steps.h"

namespace tidemark::test {

namespace {

// `rightclick CALLER [TARGET]`: the best of the unit's commands.
Action clickRight(WordCursor& words) {
  const CommandedUnits units = takeCommandedUnits(words);
  return [units](TestSession& session) {
    const em5::CommandContext context = makeContext(session, units);
    if (em5::Command* command = em5::CommandHelper::findBestCommand(context))
      em5::CommandHelper::execute(*command, context);
  };
}

// `command CALLER NAME [TARGET] [refused]`: that command, if its checks pass.
Action giveCommand(WordCursor& words) {
  CommandedUnits units;
  units.caller = takeEntityReference(words);
  const std::string name = words.take("the command's name");
  if (words.peek() && parseEntityReference(words.peek()->text)) units.target = takeEntityReference(words);
  const bool refused = words.takeIf("refused");
  return [=](TestSession& session) {
    em5::Command& command = findCommand(name);
    em5::CommandContext context = makeContext(session, units);
    if (refused) context.mPermission = em5::CommandContext::PERMISSION_REFUSED;
    if (em5::CommandHelper::passesChecks(command, context)) em5::CommandHelper::execute(command, context);
  };
}

// `block ID...`
Action block(WordCursor& words) {
  const std::vector<EntityReference> references = takeEntityReferences(words);
  if (references.empty()) throw DirectiveError("an entity to block is missing");
  return [references](TestSession& session) {
    for (const EntityReference& reference : references)
      session.tooling().blockExtinguishing(session.resolve(reference));
  };
}

}

std::optional<Action> readCommandAction(WordCursor& words) {
  if (words.takeIf("rightclick")) return clickRight(words);
  if (words.takeIf("command")) return giveCommand(words);
  if (words.takeIf("block")) return block(words);
  return std::nullopt;
}

}
