#include "game_plugin/scenario/shared/gamepad/GamepadParameter.h"

#include "game_plugin/scenario/loading/ProgramCache.h"
#include "game_plugin/scenario/loading/ScriptParser.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"
#include "tests/game_plugin/scenario/LogCapture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

using namespace script;

namespace {

/// A machine that a tool imagines.
struct MachineWithGamepad : ReadingHost {
  std::vector<std::string> mouseButtons() const override { return {}; }
  std::optional<GamepadLayout> gamepad() const override { return GamepadLayout{4, 2}; }
};

TEST(GamepadParameter, IsCheckedAgainstTheMachineThatTheReaderIsTold) {
  const LogCapture log; // whose host has no gamepad
  const auto program = ScriptParser().parseText("InitNewTrigger();\nInitConditions();\n"
                                                "GamepadButtonIsPressed(\"4\");\n"
                                                "GamepadButtonIsPressed(\"6\");\n"
                                                "CompareGamepadAxisValue(\"2\");\n"
                                                "OnGamepadPOVPressed(\"Northeast\");\n",
                                                "f", "p", MachineWithGamepad());
  EXPECT_EQ(program->triggers()[0]->conditions.size(), 4u) << "a line that isn't valid is kept";
  ASSERT_EQ(program->messages().size(), 2u);
  EXPECT_EQ(program->messages()[0].line, 4u);
  EXPECT_EQ(program->messages()[0].text, "Your Gamepad Button is out of range! (too high)");
  EXPECT_EQ(program->messages()[1].text, "Gamepad axis 2 of 2 has values from -1 to 1");
}

TEST(GamepadParameter, NoHostHasNoGamepad) {
  const auto program =
      ScriptParser().parseText("InitNewTrigger();\nInitConditions();\nGamepadButtonIsPressed(\"1\");\n", "f", "p");
  ASSERT_EQ(program->messages().size(), 1u);
  EXPECT_EQ(program->messages()[0].text, "no gamepad was found!");
}

TEST(GamepadParameter, AScriptThatIsStartedAgainIsReadForTheGamepadThatIsThereThen) {
  const LogCapture log;
  qsf::OisManager& gamepad = qsf::Qsf::instance()->getInputSystem().getOisManager();
  const std::string path =
      (std::filesystem::temp_directory_path() / ("tidemark_gamepad_" + std::to_string(getpid()))).string();
  std::ofstream(path) << "InitNewTrigger();\nInitConditions();\nGamepadButtonIsPressed(\"1\");\n";
  ProgramCache cache;
  const auto without = cache.load(path, "p");
  EXPECT_EQ(without->messages().size(), 1u);
  gamepad.plugIn({});
  const auto with = cache.load(path, "p");
  EXPECT_NE(with, without);
  EXPECT_TRUE(with->messages().empty());
  EXPECT_EQ(cache.load(path, "p"), with) << "shared as long as the gamepad is the same";
  gamepad.plugIn({.vendor = "V", .buttons = 0, .axes = 0});
  EXPECT_NE(cache.load(path, "p"), with);
  std::filesystem::remove(path);
}

}
