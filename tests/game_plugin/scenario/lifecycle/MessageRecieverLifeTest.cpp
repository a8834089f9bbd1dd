// How long the message receiver lives, and who is registered there.
#include "game_plugin/ModuleFixture.h"
#include "game_plugin/scenario/messages/MessageNames.h"
#include "game_plugin/scenario/messages/ScenarioMessageReciever.h"

using namespace script;

namespace {

class MessageRecieverLifeTest : public ModuleTest {
protected:
  static ScenarioMessageReciever* reciever() { return ScenarioMessageReciever::get(); }
  void press(const std::string& key) {
    qsf::MessageParameters message(qsf::MessageConfiguration(messages::HOTKEY, 1));
    message.setParameter("hotkey", key);
    session->getQsf().getMessageSystem().emitMessage(message);
  }
};

TEST_F(MessageRecieverLifeTest, InAGameItLivesFromTheStartOfTheMapsScriptsToTheGamesEnd) {
  addScript("main", "MAP_STARTUP", "");
  load();
  EXPECT_EQ(reciever(), nullptr);
  session->startGame(EMPTY_MAP);
  EXPECT_NE(reciever(), nullptr);
  session->endGame();
  EXPECT_EQ(reciever(), nullptr);
  session->startGame(EMPTY_MAP);
  EXPECT_NE(reciever(), nullptr);
  delete &manager();
  EXPECT_EQ(reciever(), nullptr);
}

TEST_F(MessageRecieverLifeTest, InTheEditorItLivesFromTheLoadOn) {
  load(em5::HostSession::Kind::EDITOR);
  EXPECT_NE(reciever(), nullptr);
}

TEST_F(MessageRecieverLifeTest, KeysAreFollowedThatLinesListenToWhenItLives) {
  addScript("main", "EDITOR_STARTUP",
            "InitNewTrigger();\nIsHotkeyPressed(\" 8\");\nOnHotkeyPressed(\"Plus\");\nOnHotkeyPressed(\"Nokey\");\n");
  load(em5::HostSession::Kind::EDITOR);
  for (const char* key : {"8", "Plus", "Nokey", " 8"})
    press(key);
  EXPECT_TRUE(reciever()->isHotkeyDown("8")) << "by its name, whatever the line says";
  EXPECT_TRUE(reciever()->isHotkeyDown("Plus"));
  EXPECT_FALSE(reciever()->isHotkeyDown("Nokey"));
  EXPECT_FALSE(reciever()->isHotkeyDown(" 8"));
}

TEST_F(MessageRecieverLifeTest, ScriptsThatWereLoadedBeforeItHaveNoKeyFollowed) {
  addScript("main", "MAP_STARTUP", "InitNewTrigger();\nIsHotkeyPressed(\"A\");\n");
  write("mod", "late.script", "InitNewTrigger();\nIsHotkeyPressed(\"B\");\n");
  start();
  press("A");
  EXPECT_FALSE(reciever()->isHotkeyDown("A"));
  manager().StartTemporaryScript(folder() + "/mod/late.script");
  press("B");
  EXPECT_TRUE(reciever()->isHotkeyDown("B"));
}

TEST_F(MessageRecieverLifeTest, AScriptOfTheGameHasNoRows) {
  addScript("game", "GAME_STARTUP", "");
  addScript("main", "MAP_STARTUP", "");
  start();
  qsf::getMainMap().createEntity(500);
  ScenarioHandler* game = entry(0).handler;
  ScenarioHandler* map = entry(1).handler;
  ASSERT_NE(game, nullptr);
  run(0.05);
  EXPECT_TRUE(reciever()->getSpawned(game).empty());
  EXPECT_EQ(reciever()->getSpawned(map), std::vector<std::uint64_t>{500});
}

TEST_F(MessageRecieverLifeTest, WhatComesToBeInATickIsReadInTheNext) {
  addScript("main", "MAP_STARTUP",
            "InitNewTrigger(\"Make\",true,true);\nInitEffects();\nSpawnObject(\"em5/prefab/test/tree\");\n"
            "InitNewTrigger(\"Look\",true,true);\nInitConditions();\nUnitSpawned(\"made\",\"\");\n");
  start();
  run(0.05);
  EXPECT_EQ(entry(0).document->findTrigger("Look")->timesFired, 0u);
  run(0.1);
  EXPECT_EQ(entry(0).document->findTrigger("Look")->timesFired, 2u);
  EXPECT_EQ(entry(0).handler->ResolveEntityList(std::string("made")).size(), 1u) << "that of the tick before, no more";
}

}
