#pragma once
#include "qsf/base/StringHash.h"

namespace em5 {

/// Ids of the game's messages. More are added as systems need them; each is named as it is spelled.
struct QSF_API Messages {
  static constexpr qsf::StringHash GAME_STARTUP_FINISHED{"em5::Messages::GAME_STARTUP_FINISHED"};
  static constexpr qsf::StringHash GAME_SHUTDOWN_STARTING{"em5::Messages::GAME_SHUTDOWN_STARTING"};
  /// Filter 1 command id, filter 2 caller, filter 3 target; parameter "context" a `const em5::CommandContext*`. A
  /// response of RESPONSE_BLOCK forbids the command.
  static constexpr qsf::StringHash EM5_PRE_COMMAND_EXECUTE{"em5::Messages::EM5_PRE_COMMAND_EXECUTE"};
  static constexpr qsf::StringHash EM5_CHANGE_SELECTION{"em5::Messages::EM5_CHANGE_SELECTION"};
};

}
