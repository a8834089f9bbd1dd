#include "qsf/action/ActionComponent.h"
#include "host/qsf/TestWorld.h"
#include "qsf/action/WaitAction.h"

using qsf::ActionComponent;
using qsf::IdleAction;
using qsf::WaitAction;
namespace action = qsf::action;

namespace {

class ActionComponentTest : public host_test::WorldTest {
protected:
  ActionComponentTest() { map.startup(); }
  IdleAction& push(const std::string& name, unsigned int priority,
                   action::InsertionMode mode = action::APPEND_TO_BACK) {
    IdleAction& pushed = actions.pushAction<IdleAction>(priority, mode);
    pushed.init(name);
    return pushed;
  }
  std::string plan() const {
    std::string names;
    for (const qsf::Action* entry : actions.getPlan().getActions())
      names += entry->getTypeName();
    return names;
  }
  ActionComponent& actions = *makeEntity(100).getOrCreateComponent<ActionComponent>();
};

/// Counts what is called and does as it is told.
class ProbeAction : public qsf::Action {
public:
  // Shared, since the host may shut the action down after the test's own variables are gone.
  std::shared_ptr<int> starts = std::make_shared<int>(0);
  std::shared_ptr<int> stops = std::make_shared<int>(0);
  bool starting = true;
  std::function<action::Result()> body = [] { return action::RESULT_CONTINUE; };
  std::string getTypeName() const override { return "P"; }

protected:
  bool onStartup() override {
    if (starts) ++*starts;
    return starting;
  }
  action::Result updateAction(const qsf::Clock&) override { return body(); }
  void onShutdown() override {
    if (stops) ++*stops;
  }
};

TEST_F(ActionComponentTest, AnEmptyPlanHasNoActionAndPriorityZero) {
  EXPECT_EQ(nullptr, actions.getCurrentAction());
  EXPECT_EQ(0u, actions.getCurrentPriority());
}

TEST_F(ActionComponentTest, InsertionModesAndPrioritiesOrderThePlan) {
  push("A", 100);
  push("B", 100);
  EXPECT_EQ("AB", plan());
  push("C", 200);
  EXPECT_EQ("CAB", plan());
  push("D", 100, action::INSERT_AT_FRONT);
  EXPECT_EQ("CDAB", plan());
  push("E", 10, action::INSERT_BEFORE_CURRENT);
  EXPECT_EQ("ECDAB", plan());
  push("F", 50, action::INSERT_AT_FRONT);
  EXPECT_EQ("FECDAB", plan());
  push("G", 1, action::REPLACE_WHOLE_PLAN);
  EXPECT_EQ("G", plan());
  EXPECT_EQ(1u, actions.getCurrentPriority());
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
  qsf::Action* made = actions.pushActionById("qsf::WaitAction", 5);
  ASSERT_NE(nullptr, made);
  EXPECT_EQ(WaitAction::ACTION_ID, made->getTypeId());
  EXPECT_EQ("qsf::WaitAction", made->getTypeName());
  EXPECT_EQ(100u, made->getEntityId());
  EXPECT_EQ(nullptr, actions.pushActionById("qsf::NoSuchAction"));
  EXPECT_EQ(nullptr, actions.pushActionById("qsf::LinkComponent"));
  EXPECT_EQ(1u, actions.getPlan().getActions().size());
}

TEST_F(ActionComponentTest, AnOvertakenActionStopsAndStartsAnew) {
  const auto& probe = actions.pushAction<ProbeAction>(100);
  runSeconds(0.1);
  EXPECT_EQ(1, *probe.starts);
  qsf::Action& other = push("B", 200);
  EXPECT_EQ(1, *probe.stops);
  runSeconds(0.1);
  EXPECT_EQ(1, *probe.starts);
  actions.removeAction(&other);
  runSeconds(0.05);
  EXPECT_EQ(2, *probe.starts);
}

TEST_F(ActionComponentTest, WhatDoesNotStartOrThrowsIsDropped) {
  actions.pushAction<ProbeAction>().starting = false;
  actions.pushAction<ProbeAction>().body = []() -> action::Result { throw std::runtime_error("out of range"); };
  push("A", 100);
  runSeconds(0.1);
  EXPECT_EQ("A", plan());
  ASSERT_EQ(1u, log.size());
  EXPECT_NE(std::string::npos, log[0].find("out of range"));
}

TEST_F(ActionComponentTest, AnActionMayChangeItsPlanFromInside) {
  auto& probe = actions.pushAction<ProbeAction>();
  probe.body = [this] {
    actions.clearPlan();
    push("A", 100);
    return action::RESULT_DONE;
  };
  runSeconds(0.1);
  EXPECT_EQ("A", plan());
}

TEST_F(ActionComponentTest, AnActionMayDestroyItsOwnEntity) {
  actions.pushAction<ProbeAction>().body = [this] {
    map.destroyObjectById(100);
    return action::RESULT_CONTINUE;
  };
  runSeconds(0.2);
  EXPECT_EQ(nullptr, map.getEntityById(100));
}

TEST_F(ActionComponentTest, AnActionMayDestroyItsOwnComponent) {
  actions.pushAction<ProbeAction>().body = [this] {
    map.getEntityById(100)->destroyComponentById(ActionComponent::COMPONENT_ID);
    return action::RESULT_DONE;
  };
  runSeconds(0.2);
  EXPECT_EQ(nullptr, map.getEntityById(100)->getComponent<ActionComponent>());
}

}
