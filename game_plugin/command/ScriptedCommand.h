#pragma once
#include "em5/command/Command.h"

#include <string>

namespace script {

/// Stands in the game's command system for all mouse click commands of scripts. A check of the context takes, of the
/// scripts' bids, the highest one that the caller's ScenarioCommandableComponent names, and the command then has that
/// bid's priority and icon. Executing it tells the script by the message "script::CommandUsed": here, or on the machine
/// of the client whose unit the caller is.
class ScriptedCommand : public em5::Command {
public:
  bool checkCaller(qsf::Entity& caller) override;
  bool checkContext(const qsf::game::CommandContext& context) override;
  void execute(const qsf::game::CommandContext& context) override;
  bool highlightTarget() const override { return false; }

  /// Name of the bid that won in the last check that found one; empty before.
  const std::string& getChosenName() const { return mChosenName; }

protected:
  using Command::Command;

private:
  bool takeHighestBid(const qsf::Entity& caller);

  std::string mChosenName;
};

/// The one of the command bar.
class CommandbarButton1 : public ScriptedCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"script::CommandbarButton1"};
  explicit CommandbarButton1(qsf::game::CommandManager* manager) : ScriptedCommand(manager, COMMAND_ID) {}
  static void declareCamp();
};

/// The one of the right mouse button.
class MouseClickDummyCommand : public ScriptedCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"script::MouseClickDummyCommand"};
  explicit MouseClickDummyCommand(qsf::game::CommandManager* manager) : ScriptedCommand(manager, COMMAND_ID) {}
  static void declareCamp();
};

}
CAMP_TYPE_NONCOPYABLE(script::CommandbarButton1)
CAMP_TYPE_NONCOPYABLE(script::MouseClickDummyCommand)
