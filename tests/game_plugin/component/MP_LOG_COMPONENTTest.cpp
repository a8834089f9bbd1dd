#include "game_plugin/component/MP_LOG_COMPONENT.h"

#include "game_plugin/ModuleFixture.h"
#include "game_plugin/plugin/ModuleFolder.h"
#include "qsf/input/InputSystem.h"
#include "qsf/input/OisManager.h"

#include <regex>
#include <sstream>

using namespace script;

namespace {

class PlayerLogTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    MP_LOG_COMPONENT::setFolder(folder());
  }
  static qsf::Entity& core() { return *qsf::getMainMap().getEntityById(qsf::Map::CORE_ENTITY_ID); }
  static MP_LOG_COMPONENT& component() { return *core().getOrCreateComponent<MP_LOG_COMPONENT>(); }
  /// Each of the lines ends in a line feed, which stands in the list, too.
  static std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
      if (!line.empty()) lines.push_back(line);
    return lines;
  }
  static std::vector<std::string> list(const std::string& property) {
    return linesOf(component().getPropertyAsString(property));
  }
  std::string fileText(const std::string& name) const {
    std::ifstream file(folder() + "/tidemark/" + name + ".txt", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static void expectLine(const std::string& line, const std::string& text) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(line, match, std::regex(R"( ?\[\d\d:\d\d:\d\d\]: (.*))"))) << line;
    EXPECT_EQ(match[1], text);
  }
};

TEST_F(PlayerLogTest, ALineGoesToTheLocalPlayerAndToTheMixedLog) {
  start();
  component().setPropertyByString("Incoming Message", "ahoy");
  ASSERT_EQ(list("Player 1").size(), 1u);
  expectLine(list("Player 1")[0], "ahoy");
  ASSERT_EQ(list("Mixed Players").size(), 1u);
  expectLine(list("Mixed Players")[0], "Player ->0: ahoy");
  EXPECT_TRUE(list("Player 2").empty());
  expectLine(linesOf(fileText("Player1")).at(0), "ahoy");
  expectLine(linesOf(fileText("Player Mixed")).at(0), "Player ->0: ahoy");
  EXPECT_EQ(fileText("Player1").back(), '\n');
  EXPECT_EQ(fileText("Player2"), "");
  EXPECT_EQ(count(2, "MP Log Component is located here " + folder()), 1);
}

TEST_F(PlayerLogTest, EachPlayerHasAListAndAFile) {
  start();
  for (int player = 0; player < 4; ++player)
    component().addLogEntry("line", player);
  for (const char* name : {"1", "2", "3", "4"}) {
    EXPECT_EQ(list(std::string("Player ") + name).size(), 1u);
    EXPECT_EQ(linesOf(fileText(std::string("Player") + name)).size(), 1u);
  }
  ASSERT_EQ(list("Mixed Players").size(), 4u);
  expectLine(list("Mixed Players")[2], "Player ->2: line");
}

TEST_F(PlayerLogTest, AnEmptyMessageDoesNothing) {
  start();
  component().setPropertyByString("Incoming Message", "");
  EXPECT_TRUE(list("Mixed Players").empty());
  EXPECT_EQ(fileText("Player Mixed"), "");
}

TEST_F(PlayerLogTest, TheTwentySecondLineRemovesTheOldestFromTheListOnly) {
  start();
  for (int i = 1; i <= 22; ++i)
    component().setPropertyByString("Incoming Message", std::to_string(i));
  for (const char* name : {"Player 1", "Mixed Players"})
    EXPECT_EQ(list(name).size(), 21u);
  expectLine(list("Player 1").front(), "2");
  expectLine(list("Player 1").back(), "22");
  EXPECT_EQ(linesOf(fileText("Player1")).size(), 22u);
}

TEST_F(PlayerLogTest, ANewComponentBeginsWithEmptyFiles) {
  start();
  component().addLogEntry("old", 0);
  core().destroyComponentById(MP_LOG_COMPONENT::COMPONENT_ID);
  component();
  for (const char* name : {"Player1", "Player2", "Player3", "Player4", "Player Mixed"}) {
    EXPECT_EQ(fileText(name), "");
    EXPECT_TRUE(std::filesystem::exists(folder() + "/tidemark/" + name + ".txt"));
  }
}

TEST_F(PlayerLogTest, WithoutAGameOnlyTheMixedLogTakesTheLine) {
  load(em5::HostSession::Kind::EDITOR);
  session->startGame(EMPTY_MAP);
  component().setPropertyByString("Incoming Message", "ahoy");
  EXPECT_TRUE(list("Player 1").empty());
  ASSERT_EQ(list("Mixed Players").size(), 1u);
  expectLine(list("Mixed Players")[0], "Player ->5: ahoy");
}

TEST_F(PlayerLogTest, OnAnotherEntityItTellsSoAndWorks) {
  start();
  qsf::Entity& other = *qsf::getMainMap().createEntity(100);
  auto& log = *other.getOrCreateComponent<MP_LOG_COMPONENT>();
  EXPECT_EQ(count(4, "This Component shall only be attached to the Main entity (id = 0)"), 1);
  EXPECT_TRUE(log.isRunning());
  component();
  EXPECT_EQ(count(4, "This Component shall only be attached to the Main entity (id = 0)"), 1);
}

TEST_F(PlayerLogTest, AFileThatCannotBeOpenedLosesTheLineWithoutAWord) {
  write("", "tidemark", "a file where the folder should be");
  start();
  const std::size_t lines = log.size();
  component().addLogEntry("line", 0);
  EXPECT_EQ(list("Player 1").size(), 1u);
  EXPECT_EQ(log.size(), lines + 1) << "the place alone is told";
}

TEST_F(PlayerLogTest, AGamepadsButtonIsLoggedInEachEvaluation) {
  addScript("main", "MAP_STARTUP_SIMULATION",
            "InitNewTrigger(\"t\",true,true);\nInitConditions();\nGamepadButtonIsPressed(\"2\");\n");
  load();
  session->getQsf().getInputSystem().getOisManager().plugIn({});
  MapScriptManager::replace(true); // reads the scripts anew
  session->startGame(EMPTY_MAP);
  run(0.2);
  EXPECT_EQ(core().getComponent<MP_LOG_COMPONENT>(), nullptr);
  session->getQsf().getInputSystem().getOisManager().setButton(1, true);
  run(0.2);
  ASSERT_EQ(list("Player 1").size(), 4u);
  expectLine(list("Player 1")[3], "Button was pressed");
}

TEST(ModuleFolder, IsTheFolderOfTheCode) {
  EXPECT_TRUE(std::filesystem::is_directory(moduleFolder())) << moduleFolder();
}

}
