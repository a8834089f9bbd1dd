#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "tests/game_plugin/scenario/AllocationCounter.h"
#include "tests/game_plugin/scenario/LogCapture.h"
#include "tests/game_plugin/scenario/ScriptFixture.h"

#include "qsf/input/InputSystem.h"
#include "qsf/job/JobManagers.h"
#include "qsf/log/FaultCounter.h"

#include <gtest/gtest.h>

#include <memory>

using namespace script;

namespace {

TEST(ScenarioHandler, WithoutADocumentItTellsSoAndLeavesItsJob) {
  const LogCapture log;
  ScenarioHandler handler(std::make_shared<GlobalStores>());
  handler.Start(StartKind::REALTIME);
  EXPECT_EQ(log.count(2, "ScenarioHandler: Scriptpointer is not valid"), 1);
  handler.Update(qsf::JobArguments(qsf::Time::ZERO));
  EXPECT_EQ(log.count(2, "There is no loaded script"), 1);
}

TEST(ScenarioHandler, ASingleTriggerFiresOnceAndALoopedOneInEachTick) {
  const LogCapture log;
  Script script(
      "InitNewTrigger(\"once\",true,false);\nAlways();\nInitEffects();\nVariableModify(\"a\",\"+\",\"1\",\"a\");\n"
      "InitNewTrigger(\"ever\",true,true);\nInitEffects();\nVariableModify(\"b\",\"+\",\"1\",\"b\");");
  script.tick(3);
  EXPECT_EQ(script.variable("a"), 1);
  EXPECT_EQ(script.variable("b"), 3);
  EXPECT_FALSE(script.trigger("once").active);
  EXPECT_TRUE(script.trigger("ever").active);
  EXPECT_EQ(script.trigger("ever").timesFired, 3u);
}

TEST(ScenarioHandler, EvaluationStopsWhereTheRequiredCountIsOutOfReach) {
  const LogCapture log;
  Script script("InitNewTrigger(\"t\",true,true);\nInitConditions(2);\nCompareValues(\"1\",\"==\",\"2\");\n"
                "CompareValues(\"1\",\"==\",\"2\");\nCompareValues(\"unseen\",\"==\",\"0\");");
  script.tick();
  EXPECT_EQ(script.trigger("t").fulfilledConditions, 0u);
  EXPECT_EQ(script.handler->variables.size(), 0u) << "the third condition was tested";
}

TEST(ScenarioHandler, ThereIsNoEarlyExitOnSuccess) {
  const LogCapture log;
  Script script(
      "InitNewTrigger(\"t\",true,true);\nInitConditions(1);\nCompareValues();\nCompareValues();\nCompareValues();");
  script.tick();
  EXPECT_EQ(script.trigger("t").fulfilledConditions, 3u);
}

TEST(ScenarioHandler, SwitchingOnAnActiveTriggerLeavesItsTimers) {
  const LogCapture log;
  Script script("InitNewTrigger(\"on\",true,true);\nInitConditions();\nTimer(\"100\");\n"
                "InitNewTrigger(\"off\",false,true);\nInitConditions();\nTimer(\"100\");");
  script.tick(4);
  script.handler->SetTriggerActive("on", true);
  script.handler->SetTriggerActive("off", true);
  EXPECT_EQ(script.trigger("on").lastTimeActive, qsf::Time::ZERO);
  EXPECT_EQ(script.trigger("off").lastTimeActive, qsf::Time::fromSeconds(0.2));
}

TEST(ScenarioHandler, NamesOfMissingTriggers) {
  const LogCapture log;
  Script script("InitNewTrigger(\"t\");");
  script.handler->SetTriggerActive("", true);
  EXPECT_TRUE(log.lines.empty());
  script.handler->SetTriggerActive("x", true);
  EXPECT_EQ(log.count(2, "Activate Trigger Effect was not able to find the triggerx"), 1);
  script.handler->SetTriggerActive(7u, true);
  EXPECT_EQ(log.count(2, "Activate Trigger Effect was not able to find the trigger7"), 1);
  EXPECT_EQ(script.handler->GetTriggerHash("x"), 0xFFFFFFFFu);
  EXPECT_EQ(log.count(2, "Triggername we search for: x"), 1);
  EXPECT_EQ(log.count(2, "Cant find trigger"), 1);
  const std::uint32_t hash = script.handler->GetTriggerHash("t");
  EXPECT_EQ(script.handler->GetTriggerName(hash), "t");
  EXPECT_EQ(script.handler->GetTriggerName(1), "");
}

TEST(ScenarioHandler, AHandwrittenBlockIndexThatDoesNotExistFaultsTheTick) {
  const LogCapture log;
  Script script("InitNewTrigger(\"t\");\nInitEffects();\nUseConditionalBlock(0,3);\nSetVariable(\"x\",\"1\");");
  script.tick();
  EXPECT_EQ(log.count(4, "Fault in test/main.script, line 3, UseConditionalBlock: invalid vector<T> subscript"), 1);
  EXPECT_EQ(script.variable("x"), 0) << "the effects behind it are left out";
  Script negative("InitNewTrigger(\"t\");\nInitEffects();\nUseConditionalBlock(\"-1\",0);");
  negative.tick();
  EXPECT_EQ(log.count(4, "Fault in test/main.script, line 3, UseConditionalBlock: invalid vector<T> subscript"), 2);
}

TEST(ScenarioHandler, HandwrittenBlocksThatCallEachOtherEndTheTick) {
  const LogCapture log;
  Script loop(
      "InitNewTrigger(\"t\",true,true);\nInitEffects();\nIf();\nThen();\nUseConditionalBlock(0,0);\nThenEnd();");
  const std::string fault = "line 5, UseConditionalBlock: conditional blocks call each other more than 100 levels deep";
  loop.tick();
  loop.tick();
  EXPECT_EQ(log.count(4, "Fault in test/main.script, " + fault), 2) << "the counts start anew in each tick";
  std::string tree = "InitNewTrigger(\"t\");\nInitEffects();\n";
  for (int i = 0; i < 30; ++i)
    tree += "If();\nThen();\nUseConditionalBlock(0," + std::to_string(i + 1) + ");\nUseConditionalBlock(0," +
            std::to_string(i + 1) + ");\nThenEnd();\n";
  tree += "If();\nThen();\nThenEnd();\n";
  Script wide(tree);
  wide.tick();
  EXPECT_EQ(qsf::Qsf::instance()->getFaultCounter().getCount(), 3u);
  EXPECT_TRUE(qsf::Qsf::instance()->getFaultCounter().getLastFault().ends_with("have run more than 1000000 lines"));
}

TEST(ScenarioHandler, AFaultCostsTheRestOfTheTickOfThatScriptOnly) {
  const LogCapture log;
  Script faulty("InitNewTrigger(\"first\",true,true);\nInitEffects();\nVariableModify(\"a\",\"+\",\"1\",\"a\");\n"
                "InitNewTrigger(\"faulty\",true,true);\nInitConditions();\nCompareValues(\"a\",\"<\",\"2\");\n"
                "InitEffects();\nUseConditionalBlock(7,0);\nInitNewTrigger(\"last\",true,true);\nInitEffects();\n"
                "VariableModify(\"b\",\"+\",\"1\",\"b\");");
  Script other("InitNewTrigger(\"t\",true,true);\nInitEffects();\nVariableModify(\"a\",\"+\",\"1\",\"a\");");
  qsf::Qsf::instance()->getJobManagers().runFrame(qsf::Time::fromSeconds(0.05));
  EXPECT_EQ(faulty.variable("a"), 1);
  EXPECT_EQ(faulty.variable("b"), 0);
  EXPECT_EQ(other.variable("a"), 1);
  ASSERT_EQ(log.lines.size(), 1u);
  EXPECT_EQ(log.lines[0].second, "Fault in test/main.script, line 8, UseConditionalBlock: invalid vector<T> subscript");
  qsf::Qsf::instance()->getJobManagers().runFrame(qsf::Time::fromSeconds(0.05));
  EXPECT_EQ(faulty.variable("b"), 1) << "the next tick is whole";
  EXPECT_EQ(other.variable("a"), 2);
}

TEST(ScenarioHandler, RetiringInsideATickEndsItAtOnce) {
  const LogCapture log;
  auto* handler = new ScenarioHandler(std::make_shared<GlobalStores>());
  handler->SetDocument(parseDocument("InitNewTrigger(\"t\");"));
  handler->Start(StartKind::REALTIME);
  ScenarioHandler::retire(handler); // outside of a tick it is gone at once, with its job
  EXPECT_EQ(qsf::Qsf::instance()->getJobManagers().getNumberOfJobs("em5::Jobs::REALTIME_GUI_DEBUG"), 0u);
}

TEST(ScenarioHandler, ResolvesNumbersNamesAndTheGlobalMark) {
  const LogCapture log;
  Script script("");
  ScenarioHandler& handler = *script.handler;
  EXPECT_EQ(handler.ResolveFloat(std::string("1e3")), 1000);
  EXPECT_EQ(handler.variables.size(), 0u);
  EXPECT_EQ(handler.ResolveFloat(std::string("3.5 ")), 0);
  EXPECT_EQ(handler.variables.name(0), "3.5 ");
  handler.SetFloatVariable(std::string("\xC2\xA7x"), 4);
  EXPECT_EQ(handler.getGlobalStores().variables.size(), 1u);
  EntryRunner runner;
  runner.handler->SetFloatVariable(runner.argument("\xC2\xA7x"), 5);
  EXPECT_EQ(runner.handler->variables.size(), 0u);
  EXPECT_EQ(runner.handler->ResolveFloat(runner.argument("\xC2\xA7x")), 5);
}

TEST(ScenarioHandler, AnArgumentFollowsItsEntryThroughErasures) {
  const LogCapture log;
  EntryRunner runner;
  ScenarioHandler& handler = *runner.handler;
  const std::vector<Argument> arguments = runner.arguments({"a", "b"});
  const Argument &a = arguments[0], &b = arguments[1];
  handler.SetFloatVariable(a, 1);
  handler.SetFloatVariable(b, 2);
  EXPECT_EQ(handler.ResolveFloat(b), 2);
  handler.removeLocalVariable("a");
  EXPECT_EQ(handler.ResolveFloat(b), 2);
  EXPECT_EQ(handler.ResolveFloat(a), 0) << "a read brings it to life again, empty";
  EXPECT_EQ(handler.variables.name(1), "a");
}

TEST(ScenarioHandler, AnArgumentThatReadsAsANumberNeverSeesAVariableOfThatName) {
  const LogCapture log;
  EntryRunner runner;
  const Argument five = runner.argument("5");
  runner.handler->SetFloatVariable(five, 9);
  EXPECT_EQ(runner.handler->ResolveFloat(five), 5);
  EXPECT_EQ(runner.handler->variables.size(), 1u);
  runner.handler->AddToEntityList(five, 3);
  EXPECT_EQ(runner.handler->ResolveFloat(five), 5);
}

TEST(ScenarioHandler, RemovingAGlobalListErasesTheLocalListAtItsPlace) {
  const LogCapture log;
  Script script("");
  ScenarioHandler& handler = *script.handler;
  handler.AddToEntityList(std::string("\xA7g"), 7);
  EXPECT_THROW(handler.ClearEntityList(std::string("\xA7g"), true), std::out_of_range);
  handler.AddToEntityList(std::string("first"), 1);
  handler.AddToEntityList(std::string("second"), 2);
  handler.ClearEntityList(std::string("\xA7g"), true);
  EXPECT_EQ(handler.entityLists.size(), 1u);
  EXPECT_EQ(handler.entityLists.name(0), "second");
  EXPECT_EQ(handler.getGlobalStores().entityLists.value(0).size(), 1u);
}

TEST(ScenarioHandler, VectorsNeedThreeParts) {
  const LogCapture log;
  Script script("");
  float x = -1, y = -1, z = -1;
  EXPECT_FALSE(script.handler->SplitVecInXYZ(std::string("1 2"), x, y, z));
  EXPECT_EQ(log.count(2,
                      "ScenarioHandler::SplitVecInXYZ: cant read your Position argument. Expected 3 parameters (like "
                      "\"100.5 0 70\")  and got 2 parameters"),
            1);
  EXPECT_EQ(x, -1);
  script.handler->SetFloatVariable(std::string("v"), 2);
  EXPECT_TRUE(script.handler->SplitVecInXYZ(std::string("1  v 3"), x, y, z));
  EXPECT_EQ(y, 2);
  script.handler->SetStringVariable("s", "4 5 6");
  EXPECT_TRUE(script.handler->SplitVecInXYZ(std::string("svar(s"), x, y, z));
  EXPECT_EQ(z, 6);
}

TEST(ScenarioHandler, ListsKnowIdsAndNames) {
  const LogCapture log;
  Script script("");
  EXPECT_EQ(script.handler->ResolveEntityList(std::string("1234  5678")).vector(),
            (std::vector<std::uint64_t>{1234, 5678}));
  EXPECT_EQ(script.handler->entityLists.size(), 0u);
  EXPECT_TRUE(script.handler->ResolveEntityList(std::string("12 abc")).empty());
  EXPECT_EQ(script.handler->entityLists.name(0), "12 abc");
  EXPECT_TRUE(script.handler->ResolveEntityList(std::string("")).empty());
  EXPECT_EQ(script.handler->entityLists.name(1), "");
  for (std::uint64_t id = 0; id < 100; ++id)
    script.handler->AddToEntityList(std::string("big"), id % 60);
  EXPECT_EQ(script.handler->ResolveEntityList(std::string("big")).size(), 60u);
  script.handler->RemoveFromEntityList("big", 5);
  EXPECT_FALSE(script.handler->ResolveEntityList(std::string("big")).contains(5));
}

TEST(ScenarioHandler, RunsOfOneProgramHaveTriggersOfTheirOwn) {
  const LogCapture log;
  Script first("InitNewTrigger(\"once\",true,false);\nInitEffects();\nVariableModify(\"n\",\"+\",\"1\",\"n\");\n"
               "InitNewTrigger(\"later\",false,true);");
  Script second(first.document->program);
  first.tick(3);
  first.handler->SetTriggerActive("later", true);
  EXPECT_EQ(first.document->program, second.document->program);
  EXPECT_FALSE(first.trigger("once").active);
  EXPECT_EQ(first.trigger("once").timesFired, 1u);
  EXPECT_EQ(first.trigger("later").lastTimeActive, qsf::Time::fromSeconds(0.15));
  EXPECT_TRUE(second.trigger("once").active);
  EXPECT_FALSE(second.trigger("later").active);
  EXPECT_EQ(second.trigger("once").timesFired, 0u);
  EXPECT_EQ(second.trigger("later").lastTimeActive, qsf::Time::ZERO);
  EXPECT_EQ(second.document->time, qsf::Time::ZERO);
  EXPECT_EQ(second.handler->variables.size(), 0u);
  second.tick();
  EXPECT_EQ(second.variable("n"), 1);
}

/// Counts by the hand on the mouse: how often each run has seen it go down.
class RunStateTest : public testing::Test {
protected:
  static constexpr const char* TEXT = "InitNewTrigger(\"t\",true,true);\nOnMousePressed(\"Left\");\nInitEffects();\n"
                                      "VariableModify(\"presses\",\"+\",\"1\",\"presses\");\n";
  void press(bool down) { qsf::Qsf::instance()->getInputSystem().getMouse().findButton("Left")->setPressed(down); }

  const LogCapture log;
  Script first{TEXT};
  Script second{first.document->program};
};

TEST_F(RunStateTest, EachRunOfAProgramSeesAPressForItself) {
  press(true);
  first.tick(2);
  EXPECT_EQ(first.variable("presses"), 1);
  EXPECT_EQ(second.variable("presses"), 0);
  second.tick(2);
  EXPECT_EQ(first.variable("presses"), 1);
  EXPECT_EQ(second.variable("presses"), 1);
  press(false);
  first.tick();
  press(true);
  first.tick();
  second.tick();
  EXPECT_EQ(first.variable("presses"), 2);
  EXPECT_EQ(second.variable("presses"), 1) << "it has not seen the button up";
}

TEST_F(RunStateTest, WhatARecordRemembersSurvivesARestartOfItsDocument) {
  press(true);
  first.tick();
  const Script restarted(first.document); // as a script that starts anew on the next map
  restarted.handler->Update(qsf::JobArguments(qsf::Time::fromSeconds(0.05)));
  EXPECT_EQ(restarted.handler->ResolveFloat(std::string("presses")), 0) << "the button is down since the run before";
}

TEST(ScenarioHandler, AnIdleTickAllocatesNothingAndAMillionFiringOnesStayFlat) {
  const LogCapture log;
  Script script("InitNewTrigger(\"idle\",true,true);\nInitConditions();\n"
                "CompareValues(\"\xA7 a global name that is too long for a small string\",\"==\",\"0\");\n"
                "CompareValues(\"a\",\"==\",\"1\");\nTimer(\"5000000\");\n"
                "InitNewTrigger(\"fires\",true,true);\nInitConditions();\nCompareValues(\"b\",\">=\",\"0\");\n"
                "InitEffects();\nVariableModify(\"b\",\"+\",\"1\",\"b\");\nIf();\nCompareValues(\"b\",\"<\",\"0\");\n"
                "Then();\nReturn();\nElse();\nSetVariable(\"c\",\"b\");\nThenEnd();");
  script.tick(2);
  const std::size_t before = getNumberOfAllocations();
  script.tick(1'000'000);
  EXPECT_EQ(getNumberOfAllocations() - before, 0u);
  EXPECT_EQ(script.variable("c"), 1'000'002);
}

}
