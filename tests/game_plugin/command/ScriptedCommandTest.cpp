// What scripted commands do where a script test can't bring the game: on a client, without a manager.
#include "game_plugin/command/ScriptedCommand.h"
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/component/ScenarioCommandableComponent.h"
#include "game_plugin/scenario/ScriptFixture.h"
#include "game_plugin/scenario/messages/MessageNames.h"

#include "em5/command/CommandHelper.h"
#include "em5/component/CommandableComponent.h"
#include "em5/game/Game.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/base/CallRecorder.h"

using namespace script;

namespace {

class ScriptedCommandTest : public ModuleTest {
protected:
  ScriptedCommandTest() {
    start();
    caller = qsf::getMainMap().createEntity(100);
    target = qsf::getMainMap().createEntity(101);
    caller->getOrCreateComponent<qsf::ActionComponent>();
    caller->getOrCreateComponent<em5::CommandableComponent>();
    caller->getOrCreateComponent<ScenarioCommandableComponent>()->setPropertyByString("MouseClickCommandArray", "cut");
    command = em5::CommandHelper::findCommand(MouseClickDummyCommand::COMMAND_ID);
  }
  void bid(const char* name, float priority) const {
    manager().getScriptedCommands().beginBid(name, "icon");
    manager().getScriptedCommands().confirmBid(name, priority);
  }
  bool check() const { return command->checkContext(em5::CommandHelper::makeContext(*caller, target)); }
  void execute() const { command->execute(em5::CommandHelper::makeContext(*caller, target)); }
  std::uint64_t told() const {
    return session->getQsf().getMessageSystem().getEmittedCount(qsf::StringHash(messages::COMMAND_USED));
  }
  static void becomeClient() {
    qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getLocalPlayer()->setPlayerIndex(1);
  }
  em5::CommandableComponent& unit() const { return *caller->getComponent<em5::CommandableComponent>(); }

  qsf::Entity* caller;
  qsf::Entity* target;
  em5::Command* command;
};

TEST_F(ScriptedCommandTest, OnAClientTheBidsDecideForEveryUnitAndNothingIsExecuted) {
  becomeClient();
  unit().setPlayerId(1);
  EXPECT_FALSE(check()) << "a client's unit passes on the host alone";
  bid("cut", 7);
  EXPECT_TRUE(check());
  EXPECT_EQ(7, command->getPriority());
  execute();
  EXPECT_EQ(0u, told());
}

TEST_F(ScriptedCommandTest, OnAClientAUnitNeedsNoCommandableComponent) {
  bid("cut", 7);
  caller->destroyComponentById(em5::CommandableComponent::COMPONENT_ID);
  EXPECT_FALSE(check());
  becomeClient();
  EXPECT_TRUE(check());
}

TEST_F(ScriptedCommandTest, AnEntityWithoutAPlayerTellsTheScriptsHere) {
  bid("cut", 7);
  EXPECT_TRUE(check());
  caller->destroyComponentById(em5::CommandableComponent::COMPONENT_ID);
  execute();
  EXPECT_EQ(1u, told());
}

TEST_F(ScriptedCommandTest, APlayerIdBelowOneIsTheHosts) {
  bid("cut", 7);
  unit().setPlayerId(-3);
  EXPECT_TRUE(check());
  execute();
  EXPECT_EQ(1u, told());
}

TEST_F(ScriptedCommandTest, ExecutingForAClientsUnitEndsWhateverIsMissing) {
  unit().setPlayerId(3); // there is no such player
  execute();
  qsf::UniqueInstance<em5::Game>()->getPlayerManager()->addPlayer(3);
  execute();
  caller->getComponent<ScenarioCommandableComponent>()->setPropertyByString("MouseClickCommandArray", "");
  execute();
  caller->destroyComponentById(ScenarioCommandableComponent::COMPONENT_ID);
  execute();
  EXPECT_EQ(0u, told());
}

TEST_F(ScriptedCommandTest, TheChosenNameStaysUntilAnotherBidWins) {
  auto& scripted = dynamic_cast<ScriptedCommand&>(*command);
  EXPECT_EQ("", scripted.getChosenName());
  EXPECT_EQ("", command->getIconSettings().mMouseIcon);
  bid("cut", 7);
  EXPECT_TRUE(check());
  bid("cut", 0);
  EXPECT_FALSE(check());
  EXPECT_EQ("cut", scripted.getChosenName());
}

TEST_F(ScriptedCommandTest, BothAreAlwaysAvailableAndLightNothingUp) {
  for (const qsf::StringHash id : {MouseClickDummyCommand::COMMAND_ID, CommandbarButton1::COMMAND_ID}) {
    em5::Command* found = em5::CommandHelper::findCommand(id);
    ASSERT_NE(nullptr, found);
    EXPECT_TRUE(found->checkAvailable());
    EXPECT_FALSE(found->highlightTarget());
    EXPECT_EQ(id, qsf::StringHash(found->getName()));
  }
}

TEST_F(ScriptedCommandTest, TheEditorShowsWhatItIsFor) {
  const camp::Class& metaclass = command->getCampClass();
  EXPECT_EQ("script::MouseClickDummyCommand", metaclass.tag("Name").to<std::string>());
  EXPECT_EQ("A dummy which collects the priorities from scripted commands and is able to block them",
            metaclass.tag("Description").to<std::string>());
}

TEST_F(ScriptedCommandTest, CommandsGoWithTheModule) {
  session->getQsf().getPluginSystem().unloadPlugins();
  EXPECT_EQ(nullptr, em5::CommandHelper::findCommand(MouseClickDummyCommand::COMMAND_ID));
}

TEST_F(ScriptedCommandTest, ExecuteCommandWithAnEmptyPositionGivesNone) {
  // A script's file can't say an empty text there; its default stands in.
  EntryRunner runner;
  runner.run({"ExecuteCommand", "test::Recorder", "100", "101", "", "false", "ok"});
  const auto& calls = session->getQsf().getCallRecorder().getCalls();
  ASSERT_FALSE(calls.empty());
  EXPECT_EQ("test::Recorder::execute", calls.back().operation);
  EXPECT_EQ((std::vector<std::string>{"100", "101", "null", "0", "100"}), calls.back().arguments);
}

}
