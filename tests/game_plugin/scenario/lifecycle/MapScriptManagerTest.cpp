#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

#include "em5/base/Messages.h"
#include "em5/command/CommandContext.h"
#include "em5/component/CommandableComponent.h"
#include "game_plugin/ModuleFixture.h"
#include "qsf/log/FaultCounter.h"
#include "tests/game_plugin/scenario/AllocationCounter.h"

using namespace script;

namespace {

using MapScriptManagerTest = ModuleTest;

const std::string COUNTING =
    "InitNewTrigger(\"t\",true,true);\nInitEffects();\nVariableModify(\"n\",\"+\",\"1\",\"n\");\n";

std::string effectOnce(const std::string& effect) {
  return "InitNewTrigger(\"t\",true,false);\nInitEffects();\n" + effect;
}

TEST_F(MapScriptManagerTest, ModesAreTheirExactTexts) {
  EXPECT_EQ(toScriptMode("GAME_STARTUP"), ScriptMode::GAME_STARTUP);
  EXPECT_EQ(toScriptMode("MAP_STARTUP"), ScriptMode::MAP_STARTUP);
  EXPECT_EQ(toScriptMode("TEMPORARY"), ScriptMode::TEMPORARY);
  EXPECT_EQ(toScriptMode("EDITOR_STARTUP"), ScriptMode::EDITOR_STARTUP);
  EXPECT_EQ(toScriptMode("MAP_STARTUP_SIMULATION"), ScriptMode::MAP_STARTUP_SIMULATION);
  EXPECT_EQ(toScriptMode("map_startup"), ScriptMode::UNKNOWN);
  EXPECT_EQ(toText(ScriptMode::MAP_STARTUP_SIMULATION), "MAP_STARTUP_SIMULATION");
}

TEST_F(MapScriptManagerTest, AMapScriptRunsWithItsGame) {
  addScript("a", "MAP_STARTUP", COUNTING);
  load();
  EXPECT_EQ(entry(0).handler, nullptr);
  EXPECT_EQ(entry(0).globalNamePrefix, "mod/a.script");
  EXPECT_EQ(entry(0).path, scriptPath("a"));
  session->startGame(EMPTY_MAP);
  ASSERT_NE(entry(0).handler, nullptr);
  run(0.25);
  EXPECT_EQ(entry(0).handler->ResolveFloat(std::string("n")), 5);
  session->endGame();
  EXPECT_EQ(entry(0).handler, nullptr);
}

TEST_F(MapScriptManagerTest, BracketsWithoutEndCostTheModOnly) {
  addScript("a", "MAP_STARTUP", COUNTING);
  loadList("{\"MapScripts\": " + std::string(500'000, '['));
  EXPECT_TRUE(manager().getScriptEntries().empty());
  EXPECT_TRUE(logged(4, "MapScript.json"));
}

TEST_F(MapScriptManagerTest, AFolderIsNoScript) {
  write("mod", "x64/tidemark/folder/x", "");
  loadList("{\"MapScripts\": {\"a\": {\"Path\": \"folder\", \"Mode\": \"MAP_STARTUP\", \"Maps\": [\"All\"]}}}");
  EXPECT_EQ(count(4, "MapscriptManager: a cant be created because the Mapscriptfile \"" + folder() +
                         "/mod/x64/tidemark/folder\" does not exist or can't be open"),
            1);
}

TEST_F(MapScriptManagerTest, ATemporaryScriptStartsOncePerScriptOfAnotherPath) {
  addScript("a", "MAP_STARTUP", COUNTING);
  addScript("b", "MAP_STARTUP", COUNTING);
  start();
  manager().StartTemporaryScript(scriptPath("b"));
  ASSERT_EQ(manager().getScriptEntries().size(), 3u);
  EXPECT_EQ(entry(2).globalNamePrefix, "");
  EXPECT_EQ(entry(2).document->triggers[0].globalName(), "/t");
  EXPECT_EQ(count(2, "\tMapscriptManager: succesfully initialize new temproray Scenario " + scriptPath("b")), 1);
  manager().StartTemporaryScript("elsewhere");
  EXPECT_EQ(manager().getScriptEntries().size(), 6u);
}

TEST_F(MapScriptManagerTest, ATemporaryScriptNeedsAnEntryOfAnotherPath) {
  addScript("only", "MAP_STARTUP", "InitNewTrigger(\"t\");");
  start();
  manager().StartTemporaryScript(scriptPath("only"));
  EXPECT_EQ(manager().getScriptEntries().size(), 1u) << "the one entry has that very path";
  EXPECT_FALSE(logged(2, "succesfully initialize new temproray Scenario"));
}

TEST_F(MapScriptManagerTest, WithoutAnyEntryNothingStarts) {
  loadList("{\"MapScripts\": {}}");
  session->startGame(EMPTY_MAP);
  write("mod", "x64/tidemark/temporary.script", "InitNewTrigger(\"t\");");
  manager().StartTemporaryScript(scriptPath("temporary"));
  EXPECT_TRUE(manager().getScriptEntries().empty());
}

TEST_F(MapScriptManagerTest, MultiplicationEndsAtABound) {
  addScript("a", "MAP_STARTUP", "");
  addScript("b", "MAP_STARTUP", "");
  start();
  for (int i = 0; i < 40; ++i)
    manager().StartTemporaryScript(scriptPath(i % 2 ? "a" : "b"));
  EXPECT_EQ(manager().getScriptEntries().size(), MapScriptManager::MAXIMUM_SCRIPTS);
  EXPECT_TRUE(logged(4, "no further instance of"));
}

TEST_F(MapScriptManagerTest, ScriptsThatStopAndStartEachOtherAreBoundedInEachFrame) {
  addScript("a", "MAP_STARTUP", "");
  addScript("b", "MAP_STARTUP", "");
  start();
  for (int i = 0; i < 40; ++i)
    manager().StartTemporaryScript(scriptPath(i % 2 ? "a" : "b"));
  while (manager().getScriptEntries().size() > 1)
    manager().stopScript(manager().getScriptEntries().back()->path);
  const std::string other = manager().getScriptEntries().front()->path == scriptPath("a") ? "b" : "a";
  for (int i = 0; i < 5; ++i)
    manager().StartTemporaryScript(scriptPath(other));
  EXPECT_EQ(manager().getScriptEntries().size(), 3u) << "the frame had two starts left";
  EXPECT_EQ(std::count_if(log.begin(), log.end(), [](const auto& line) { return line.first == 4; }), 1);
  run(0.05);
  manager().StartTemporaryScript(scriptPath(other));
  EXPECT_EQ(manager().getScriptEntries().size(), 4u);
}

TEST_F(MapScriptManagerTest, StoppingSkipsTheNeighbour) {
  addScript("a", "MAP_STARTUP", COUNTING);
  start();
  manager().StartTemporaryScript("x");
  manager().StartTemporaryScript("y"); // two of them: next to each other
  ASSERT_EQ(manager().getScriptEntries().size(), 4u);
  manager().stopScript("y");
  ASSERT_EQ(manager().getScriptEntries().size(), 3u);
  EXPECT_EQ(entry(2).path, "y");
  EXPECT_NE(entry(2).handler, nullptr);
}

TEST_F(MapScriptManagerTest, AScriptMayStopItself) {
  addScript("a", "MAP_STARTUP",
            effectOnce("StopScenario(\"" + folder() +
                       "/mod/x64/tidemark/a.script\");\n"
                       "DoLogEntry(\"INFO\",\"behind\");\n"));
  start();
  run(0.1);
  EXPECT_TRUE(manager().getScriptEntries().empty());
  EXPECT_EQ(count(2, "behind"), 0);
  EXPECT_EQ(session->getQsf().getFaultCounter().getCount(), 0u);
}

TEST_F(MapScriptManagerTest, TheEntryBehindATemporaryOneIsSkippedAtShutdownAndGoesOn) {
  addScript("listed", "TEMPORARY", "");
  addScript("b", "MAP_STARTUP", COUNTING);
  start();
  session->endGame();
  ASSERT_EQ(manager().getScriptEntries().size(), 1u);
  EXPECT_EQ(entry(0).key, "b");
  ScenarioHandler* skipped = entry(0).handler;
  ASSERT_NE(skipped, nullptr);
  session->runFrame(TICK);
  EXPECT_EQ(skipped->ResolveFloat(std::string("n")), 1);
  // The next map gives the entry a new handler; the skipped one goes on beside it until the manager ends.
  session->startGame(EMPTY_MAP);
  EXPECT_NE(entry(0).handler, skipped);
  session->runFrame(TICK);
  EXPECT_EQ(skipped->ResolveFloat(std::string("n")), 2);
  EXPECT_EQ(entry(0).handler->ResolveFloat(std::string("n")), 1);
}

TEST_F(MapScriptManagerTest, MayBeReplacedWhileOneOfItsScriptsTicks) {
  class ReloadAtLog {
  public:
    explicit ReloadAtLog(qsf::LogSystem& log) {
      log.addListener([](const qsf::LogSystem::Record& record) {
        if (record.message == "reload now") MapScriptManager::replace(false);
      });
    }
  };
  addScript("a", "MAP_STARTUP", effectOnce("DoLogEntry(\"INFO\",\"reload now\");\nDoLogEntry(\"INFO\",\"behind\");\n"));
  start();
  const ReloadAtLog reload(session->getQsf().getLogSystem());
  run(0.2);
  EXPECT_EQ(count(2, "reload now"), 1);
  EXPECT_EQ(count(2, "behind"), 0);
  EXPECT_EQ(entry(0).handler, nullptr);
  EXPECT_EQ(session->getQsf().getFaultCounter().getCount(), 0u);
}

TEST_F(MapScriptManagerTest, GlobalVariablesEndWithTheManager) {
  addScript("a", "MAP_STARTUP", effectOnce("SetVariable(\"\xA7g\",\"4\");\n"));
  start();
  run(0.1);
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(manager().getGlobalStores()->variables.size(), 1u);
  MapScriptManager::replace(false);
  EXPECT_EQ(manager().getGlobalStores()->variables.size(), 0u);
}

TEST_F(MapScriptManagerTest, InstancesOfAScriptShareItsProgram) {
  addScript("a", "MAP_STARTUP", COUNTING);
  addScript("b", "MAP_STARTUP", COUNTING);
  start();
  manager().StartTemporaryScript(scriptPath("b"));
  manager().StartTemporaryScript(scriptPath("b"));
  ASSERT_EQ(manager().getScriptEntries().size(), 4u);
  EXPECT_NE(entry(2).document, entry(3).document);
  EXPECT_EQ(entry(2).document->program, entry(3).document->program);
  EXPECT_NE(entry(2).document->program, entry(1).document->program) << "the names of its triggers are others";
  run(0.1);
  EXPECT_EQ(entry(2).handler->ResolveFloat(std::string("n")), 2);
  const std::weak_ptr<const Program> program = entry(2).document->program;
  while (manager().getScriptEntries().size() > 1)
    manager().stopScript(scriptPath("b"));
  EXPECT_TRUE(program.expired());
}

TEST_F(MapScriptManagerTest, AScriptThatHasChangedIsReadAnewByTheNextInstance) {
  addScript("a", "MAP_STARTUP", "");
  start();
  write("mod", "x64/tidemark/temporary.script", "InitNewTrigger(\"old\");");
  manager().StartTemporaryScript(scriptPath("temporary"));
  write("mod", "x64/tidemark/temporary.script", "InitNewTrigger(\"new\");");
  manager().StartTemporaryScript(scriptPath("temporary"));
  EXPECT_EQ(entry(1).document->triggers[0].name(), "old");
  EXPECT_EQ(entry(2).document->triggers[0].name(), "new");
}

TEST_F(MapScriptManagerTest, AHundredThousandStartsAndStopsLeaveNothingBehind) {
  addScript("a", "MAP_STARTUP", "");
  start();
  std::string text;
  for (int trigger = 0; trigger < 3; ++trigger)
    text += "InitNewTrigger(\"a trigger whose name is long " + std::to_string(trigger) +
            "\",true,true);\nInitConditions();\nCompareValues(\"counter\",\">=\",\"0\");\nOnMousePressed(\"Left\");\n"
            "InitEffects();\nSetVariable(\"a variable whose name is long\",\"1\");\n";
  text += "NoSuch();\n";
  write("mod", "x64/tidemark/temporary.script", text);
  const std::string path = scriptPath("temporary");
  // As many as a frame allows; the last of them runs for a frame.
  const auto startAndStop = [&] {
    for (std::size_t i = 0; i < MapScriptManager::MAXIMUM_SCRIPTS; ++i) {
      manager().StartTemporaryScript(path);
      if (i + 1 < MapScriptManager::MAXIMUM_SCRIPTS) manager().stopScript(path);
    }
    run(0.05);
    manager().stopScript(path);
    log.clear();
  };
  for (int i = 0; i < 2; ++i)
    startAndStop();
  const std::size_t before = getLiveBytes();
  for (int i = 0; i < 50; ++i)
    startAndStop();
  EXPECT_LT(getLiveBytes(), before + 50'000) << "less than a byte a start";
  EXPECT_EQ(manager().getScriptEntries().size(), 1u);
}

class PreCommandCheckTest : public ModuleTest {
protected:
  void SetUp() override {
    ModuleTest::SetUp();
    write("mod", "order_info/fire/plain.json", R"({"name": "Plain"})");
    write("mod", "order_info/fire/masked.json", R"({"name": "Masked", "tags": ["IgnoreSmoke"]})");
    start();
    manager().getBlockedEntityIds() = {77};
  }
  static std::uint64_t placeUnit(const std::string& orderInfo) {
    qsf::Entity* unit = qsf::getMainMap().createEntity();
    unit->getOrCreateComponent<em5::CommandableComponent>()->setOrderInfo(orderInfo);
    return unit->getId();
  }
  int ask(const char* command, std::uint64_t target, std::uint64_t caller = qsf::UNINITIALIZED_ID,
          const em5::CommandContext* context = nullptr) {
    qsf::MessageParameters parameters(qsf::MessageConfiguration(em5::Messages::EM5_PRE_COMMAND_EXECUTE,
                                                                qsf::StringHash(command).getHash(), caller, target));
    if (context) parameters.setParameter("context", context);
    session->getQsf().getMessageSystem().emitMessage(parameters);
    return parameters.getResponse();
  }
};

TEST_F(PreCommandCheckTest, ExtinguishingABlockedEntityIsForbidden) {
  for (const char* command :
       {"em5::ExtinguishWithCannonCommand", "em5::ExtinguishWithHoseCommand", "em5::DLKExtinguishCommand"}) {
    EXPECT_EQ(ask(command, 77), qsf::MessageParameters::RESPONSE_BLOCK) << command;
    EXPECT_EQ(ask(command, 78), 0) << command;
  }
  EXPECT_EQ(ask("em5::MoveCommand", 77), 0);
}

TEST_F(PreCommandCheckTest, TheExtinguisherIsForbiddenToUnitsThatMindSmoke) {
  const char* command = "em5::ExtinguishWithExtinguisherCommand";
  const int blocks = qsf::MessageParameters::RESPONSE_BLOCK;
  em5::CommandContext context;
  const std::uint64_t plain = placeUnit("Plain");
  EXPECT_EQ(ask(command, 77, plain, &context), blocks);
  EXPECT_EQ(ask(command, 78, plain, &context), 0);
  EXPECT_EQ(ask(command, 77, plain), 0) << "no context";
  EXPECT_EQ(ask(command, 77, 55555, &context), 0) << "no such unit";
  EXPECT_EQ(ask(command, 77, placeUnit("NoSuchOrderInfo"), &context), 0);
  EXPECT_EQ(ask(command, 77, placeUnit("Masked"), &context), 0) << "the unit doesn't mind";
  context.mConsiderSmoke = false;
  EXPECT_EQ(ask(command, 77, plain, &context), 0) << "the order is given regardless of smoke";
}

TEST_F(PreCommandCheckTest, EndsWithTheGameAndForgetsAtTheNext) {
  session->endGame();
  EXPECT_TRUE(manager().getBlockedEntityIds().empty());
  EXPECT_EQ(ask("em5::ExtinguishWithHoseCommand", 77), 0);
  manager().getBlockedEntityIds() = {77};
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(ask("em5::ExtinguishWithHoseCommand", 77), 0);
}

}
