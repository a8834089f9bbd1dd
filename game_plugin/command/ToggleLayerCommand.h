#pragma once
#include "em5/command/Command.h"

namespace script {

/// Opens the next floor of an open house. The house is the caller: it can be ordered to, like a unit.
class ToggleLayerCommand : public em5::Command {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"script::ToggleLayerCommand"};
  explicit ToggleLayerCommand(qsf::game::CommandManager* manager);
  static void declareCamp();

  bool checkContext(const qsf::game::CommandContext& context) override;
  void execute(const qsf::game::CommandContext& context) override;
};

}
CAMP_TYPE_NONCOPYABLE(script::ToggleLayerCommand)
