#pragma once
#include "em5/command/Command.h"
#include "em5/command/CommandContext.h"

namespace em5 {

/// What a player's click means and does. The message EM5_PRE_COMMAND_EXECUTE announces each execution and may forbid
/// it.
class QSF_API CommandHelper {
public:
  /// The context of a click with the right button; the position is the target's.
  static CommandContext makeContext(qsf::Entity& caller, qsf::Entity* target);
  /// All three checks, in their order.
  static bool passesChecks(Command& command, const CommandContext& context);
  /// The command that a click would execute: of the caller's, those whose checks pass, the one of highest priority, the
  /// first of equal ones. Null if there is none.
  static Command* findBestCommand(const CommandContext& context);
  /// Executes unless a listener forbids it.
  static void execute(Command& command, const CommandContext& context);
  /// The game's command of that id. Null if there is none.
  static Command* findCommand(qsf::StringHash id);
};

}
