#include "game_plugin/scenario/lifecycle/ScriptedCommands.h"

#include <gtest/gtest.h>

using script::ScriptedCommandRecord;
using script::ScriptedCommands;

namespace {

TEST(ScriptedCommands, ARowBeginsWithoutAPriority) {
  ScriptedCommands commands;
  commands.beginBid("heal", "cross");
  ASSERT_EQ(commands.rows().size(), 1u);
  const ScriptedCommandRecord& row = *commands.rows()[0];
  EXPECT_EQ(row.commandName, "heal");
  EXPECT_EQ(row.mouseIcon, "cross");
  EXPECT_EQ(row.priority, 0.0f);
  EXPECT_FALSE(row.armed);
}

TEST(ScriptedCommands, APriorityThatMakesTheRowIsLost) {
  ScriptedCommands commands;
  commands.confirmBid("heal", 5);
  EXPECT_EQ(commands.find("heal")->priority, 0.0f);
  EXPECT_EQ(commands.find("heal")->mouseIcon, "");
  EXPECT_FALSE(commands.find("heal")->armed);
}

TEST(ScriptedCommands, AConfirmedBidStandsOneBeginningAndFallsWithTheSecond) {
  ScriptedCommands commands;
  commands.beginBid("heal", "cross");
  commands.confirmBid("heal", 5);
  EXPECT_TRUE(commands.find("heal")->armed);
  commands.beginBid("heal", "cross");
  EXPECT_EQ(commands.find("heal")->priority, 5.0f);
  EXPECT_FALSE(commands.find("heal")->armed);
  commands.beginBid("heal", "cross");
  EXPECT_EQ(commands.find("heal")->priority, 0.0f);
}

TEST(ScriptedCommands, TheIconNeverChanges) {
  ScriptedCommands commands;
  commands.beginBid("heal", "cross");
  commands.beginBid("heal", "heart");
  commands.confirmBid("heal", 1);
  EXPECT_EQ(commands.find("heal")->mouseIcon, "cross");
  EXPECT_EQ(commands.rows().size(), 1u);
}

TEST(ScriptedCommands, RowsAreFoundByTheirWholeName) {
  ScriptedCommands commands;
  commands.beginBid("heal", "a");
  commands.beginBid("Heal", "b");
  EXPECT_EQ(commands.find("Heal")->mouseIcon, "b");
  EXPECT_EQ(commands.find("hea"), nullptr);
}

}
