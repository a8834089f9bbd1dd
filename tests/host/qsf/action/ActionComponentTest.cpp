#include "qsf/action/ActionComponent.h"
#include "host/qsf/TestWorld.h"
#include "qsf/action/WaitAction.h"
#include "qsf/base/StringHashManager.h"

using qsf::ActionComponent;
using qsf::IdleAction;
using qsf::WaitAction;
namespace action = qsf::action;

namespace {

/// Counts what is called and does as it is told.
class ProbeAction : public qsf::Action {
public:
  // Shared, since the host may shut the action down after the test's own variables are gone.
  std::shared_ptr<int> starts = std::make_shared<int>(0);
  std::shared_ptr<int> stops = std::make_shared<int>(0);
  bool starting = true;
  std::function<action::Result()> body = [] { return action::RESULT_CONTINUE; };
  std::string getTypeName() const override { return "P"; }
  std::function<void()> atStart = [] {};

protected:
  bool onStartup() override {
    ++*starts;
    atStart();
    return starting;
  }
  action::Result updateAction(const qsf::Clock&) override { return body(); }
  void onShutdown() override { ++*stops; }
};

class ActionComponentTest : public host_test::WorldTest {
protected:
  ActionComponentTest() { map.startup(); }
  IdleAction& push(const std::string& name, unsigned int priority,
                   action::InsertionMode mode = action::APPEND_TO_BACK) {
    IdleAction& pushed = actions.pushAction<IdleAction>(priority, mode);
    pushed.init(name);
    return pushed;
  }
  ProbeAction& pushProbe(unsigned int priority = 100) {
    return static_cast<ProbeAction&>(
        actions.insertAction(std::make_unique<ProbeAction>(), priority, action::APPEND_TO_BACK));
  }
  std::string plan() const {
    std::string names;
    for (const qsf::Action* entry : actions.getPlan().getActions())
      names += entry->getTypeName();
    return names;
  }
  ActionComponent& actions = *makeEntity(100).getOrCreateComponent<ActionComponent>();
};

TEST_F(ActionComponentTest, AnEmptyPlanHasNoActionAndPriorityZero) {
  EXPECT_EQ(nullptr, actions.getCurrentAction());
  EXPECT_EQ(0u, actions.getCurrentPriority());
}

TEST_F(ActionComponentTest, AppendedActionsKeepTheOrderOfTheirInsertionWhateverTheirPriority) {
  push("A", 100);
  push("B", 300);
  push("C", 200);
  EXPECT_EQ("ABC", plan());
  EXPECT_EQ(100u, actions.getCurrentPriority());
}

TEST_F(ActionComponentTest, InsertedAtTheFrontAnActionOvertakesAllButACurrentOneOfAtLeastItsPriority) {
  push("A", 100);
  push("B", 50);
  push("C", 100, action::INSERT_AT_FRONT);
  EXPECT_EQ("ACB", plan());
  push("D", 10, action::INSERT_AT_FRONT);
  EXPECT_EQ("ADCB", plan());
  push("E", 101, action::INSERT_AT_FRONT);
  EXPECT_EQ("EADCB", plan());
}

TEST_F(ActionComponentTest, InsertedBeforeTheCurrentOneAnActionOvertakesWhateverItsPriority) {
  push("A", 100);
  push("B", 1, action::INSERT_BEFORE_CURRENT);
  EXPECT_EQ("BA", plan());
}

TEST_F(ActionComponentTest, ReplacingLeavesTheNewActionAlone) {
  push("A", 100);
  push("B", 100);
  push("C", 1, action::REPLACE_WHOLE_PLAN);
  EXPECT_EQ("C", plan());
  EXPECT_EQ(1u, actions.getCurrentPriority());
}

TEST_F(ActionComponentTest, AnActionInAnEmptyPlanIsTheCurrentOneAtOnce) {
  const qsf::Action& first = push("A", 100, action::INSERT_AT_FRONT);
  EXPECT_EQ(&first, actions.getCurrentAction());
  push("B", 100, action::INSERT_AT_FRONT);
  EXPECT_EQ(&first, actions.getCurrentAction());
}

TEST_F(ActionComponentTest, AChangedPriorityCountsForComparisonsAndMovesNothing) {
  qsf::Action& current = push("A", 100);
  push("B", 150);
  current.setPriority(200);
  push("C", 200, action::INSERT_AT_FRONT);
  EXPECT_EQ("ACB", plan());
}

TEST_F(ActionComponentTest, WaitsRunOneAfterTheOther) {
  actions.pushAction<WaitAction>().init(qsf::Time::fromSeconds(1));
  actions.pushAction<WaitAction>().init(qsf::Time::fromSeconds(1));
  runSeconds(0.95);
  EXPECT_EQ(2u, actions.getPlan().getActions().size());
  runSeconds(0.05);
  EXPECT_EQ(1u, actions.getPlan().getActions().size());
  runSeconds(1);
  EXPECT_EQ(nullptr, actions.getCurrentAction());
}

TEST_F(ActionComponentTest, ActionsAreMadeByTheHashOfTheirName) {
  const qsf::Action& made = actions.pushActionById("qsf::WaitAction", 5);
  EXPECT_EQ(WaitAction::ACTION_ID, made.getTypeId());
  EXPECT_EQ("qsf::WaitAction", made.getTypeName());
  EXPECT_EQ(5u, made.getPriority());
  EXPECT_EQ(100u, made.getEntityId());
}

TEST_F(ActionComponentTest, AnUnknownActionIsLoggedAndThrownAndLeavesThePlanAlone) {
  host.getStringHashManager().registerStringHash("my::NoSuchAction", "my::NoSuchAction");
  push("A", 100);
  EXPECT_THROW(actions.pushActionById("my::NoSuchAction", 100, action::REPLACE_WHOLE_PLAN), std::runtime_error);
  EXPECT_EQ("A", plan());
  EXPECT_EQ(std::vector<std::string>{"ActionComponent::PushAction() Can't create action: \"my::NoSuchAction\""}, log);
}

TEST_F(ActionComponentTest, AClassThatIsNoActionCannotBeOne) {
  EXPECT_EQ(nullptr, actions.createActionById("qsf::LinkComponent"));
  EXPECT_EQ(nullptr, actions.createActionById("qsf::logic::TargetPointProvider"));
  EXPECT_TRUE(log.empty());
}

TEST_F(ActionComponentTest, AWaitTellsItsTime) {
  auto& wait = actions.pushAction<WaitAction>();
  wait.init(qsf::Time::fromSeconds(2.5));
  EXPECT_EQ((action::Description{{"time", "2.5"}}), wait.describe());
}

TEST_F(ActionComponentTest, AnInterruptedWaitBeginsAnew) {
  actions.pushAction<WaitAction>().init(qsf::Time::fromSeconds(1));
  runSeconds(0.9);
  actions.pushAction<WaitAction>(1, action::INSERT_BEFORE_CURRENT).init(qsf::Time::fromSeconds(0.5));
  runSeconds(0.5);
  EXPECT_EQ(1u, actions.getPlan().getActions().size());
  runSeconds(0.95);
  EXPECT_EQ(1u, actions.getPlan().getActions().size());
  runSeconds(0.05);
  EXPECT_TRUE(actions.getPlan().isEmpty());
}

TEST_F(ActionComponentTest, AnEndlessWaitNeverEnds) {
  actions.pushAction<WaitAction>().init(qsf::Time::fromSeconds(std::numeric_limits<double>::infinity()));
  runSeconds(10);
  EXPECT_EQ(1u, actions.getPlan().getActions().size());
}

TEST_F(ActionComponentTest, AnInterruptedActionStopsAndStartsAnew) {
  const ProbeAction& probe = pushProbe(100);
  runSeconds(0.1);
  EXPECT_EQ(1, *probe.starts);
  const qsf::Action& other = push("B", 200, action::INSERT_AT_FRONT);
  EXPECT_EQ(1, *probe.stops);
  runSeconds(0.1);
  EXPECT_EQ(1, *probe.starts);
  actions.removeAction(&other);
  runSeconds(0.05);
  EXPECT_EQ(2, *probe.starts);
}

TEST_F(ActionComponentTest, AppendingDoesNotInterrupt) {
  const ProbeAction& probe = pushProbe(100);
  runSeconds(0.1);
  push("B", 1000);
  runSeconds(0.1);
  EXPECT_EQ(0, *probe.stops);
  EXPECT_EQ(1, *probe.starts);
}

TEST_F(ActionComponentTest, InsertedAtTheFrontAnActionOfTheSamePriorityDoesNotInterrupt) {
  const ProbeAction& probe = pushProbe(100);
  push("A", 300);
  runSeconds(0.1);
  push("B", 100, action::INSERT_AT_FRONT);
  runSeconds(0.1);
  EXPECT_EQ("PBA", plan());
  EXPECT_EQ(0, *probe.stops);
}

TEST_F(ActionComponentTest, AnInterruptedActionCountsAsNotBegun) {
  pushProbe(100);
  runSeconds(0.1);
  push("A", 50, action::INSERT_BEFORE_CURRENT);
  push("B", 50, action::INSERT_AT_FRONT);
  EXPECT_EQ("ABP", plan());
}

TEST_F(ActionComponentTest, ClearingTakesOffEverythingWhateverItsPriority) {
  const std::shared_ptr<int> stops = pushProbe(1000).stops;
  push("A", 200);
  push("B", 1);
  runSeconds(0.1);
  actions.clearPlan();
  EXPECT_TRUE(actions.getPlan().isEmpty());
  EXPECT_EQ(0u, actions.getCurrentPriority());
  EXPECT_EQ(1, *stops);
  const qsf::Action& next = push("C", 1);
  EXPECT_EQ(&next, actions.getCurrentAction());
}

TEST_F(ActionComponentTest, WhatDoesNotStartIsNotShutDownAndTheNextOneFollows) {
  ProbeAction& probe = pushProbe();
  probe.starting = false;
  const std::shared_ptr<int> stops = probe.stops;
  const ProbeAction& next = pushProbe();
  runSeconds(0.05);
  EXPECT_EQ(&next, actions.getCurrentAction());
  runSeconds(0.05);
  EXPECT_EQ(1, *next.starts);
  EXPECT_EQ(0, *stops);
}

TEST_F(ActionComponentTest, AnActionThatHasNotBegunIsNotShutDown) {
  const std::shared_ptr<int> stops = pushProbe(100).stops;
  actions.clearPlan();
  runSeconds(0.1);
  EXPECT_EQ(0, *stops);
}

TEST_F(ActionComponentTest, WhatDoesNotStartOrThrowsIsDropped) {
  pushProbe().starting = false;
  pushProbe().body = []() -> action::Result { throw std::runtime_error("out of range"); };
  push("A", 100);
  runSeconds(0.1);
  EXPECT_EQ("A", plan());
  ASSERT_EQ(1u, log.size());
  EXPECT_NE(std::string::npos, log[0].find("out of range"));
}

TEST_F(ActionComponentTest, AnActionThatRemovesItselfWhileItStartsIsShutDownAgain) {
  ProbeAction& probe = pushProbe();
  const std::shared_ptr<int> stops = probe.stops;
  probe.atStart = [this] { actions.clearPlan(); };
  probe.body = []() -> action::Result { throw std::logic_error("it is not in the plan any more"); };
  runSeconds(0.1);
  EXPECT_EQ(1, *stops);
  EXPECT_TRUE(log.empty());
}

TEST_F(ActionComponentTest, AnActionThatIsInterruptedWhileItStartsIsShutDownAndComesAgain) {
  ProbeAction& probe = pushProbe();
  probe.atStart = [&] {
    if (*probe.starts == 1) actions.pushAction<WaitAction>(1, action::INSERT_BEFORE_CURRENT);
  };
  runSeconds(0.05);
  EXPECT_EQ(1, *probe.stops);
  EXPECT_EQ("qsf::WaitActionP", plan());
  runSeconds(0.1);
  EXPECT_EQ(2, *probe.starts);
  EXPECT_EQ("P", plan());
}

TEST_F(ActionComponentTest, RemovedActionsAreFreedEvenInAPausedSimulation) {
  host.getJobManagers().setPaused(true);
  const std::size_t before = qsf::Action::getNumberOfLiving();
  for (int i = 0; i < 50; ++i) {
    push("A", 100);
    actions.clearPlan();
    runSeconds(0.05);
  }
  EXPECT_LE(qsf::Action::getNumberOfLiving(), before + 1);
}

TEST_F(ActionComponentTest, ARemovedActionLivesUntilTheFrameEnds) {
  const qsf::Action& removed = push("A", 100);
  actions.removeAction(&removed);
  EXPECT_EQ("A", removed.getTypeName());
}

TEST_F(ActionComponentTest, AnActionMayChangeItsPlanFromInside) {
  pushProbe().body = [this] {
    actions.clearPlan();
    push("A", 100);
    return action::RESULT_DONE;
  };
  runSeconds(0.1);
  EXPECT_EQ("A", plan());
}

TEST_F(ActionComponentTest, AnActionMayDestroyItsOwnEntity) {
  pushProbe().body = [this] {
    map.destroyObjectById(100);
    return action::RESULT_CONTINUE;
  };
  runSeconds(0.2);
  EXPECT_EQ(nullptr, map.getEntityById(100));
}

TEST_F(ActionComponentTest, AnActionMayDestroyItsOwnComponent) {
  pushProbe().body = [this] {
    map.getEntityById(100)->destroyComponentById(ActionComponent::COMPONENT_ID);
    return action::RESULT_DONE;
  };
  runSeconds(0.2);
  EXPECT_EQ(nullptr, map.getEntityById(100)->getComponent<ActionComponent>());
}

}
