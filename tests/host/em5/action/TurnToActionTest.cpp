#include "em5/action/TurnToAction.h"

#include "host/em5/action/ActionTest.h"
#include "qsf/component/LinkComponent.h"
#include "qsf/component/MovableComponent.h"
#include "qsf/math/Heading.h"

namespace {

class TurnToActionTest : public host_test::ActionTest {
protected:
  float degreesToTarget() const {
    const auto& transform = *person.getComponent<qsf::TransformComponent>();
    return glm::degrees(qsf::getAngleToFace(transform.getPosition(), transform.getRotation(), positionOf(target)));
  }
  qsf::Entity& person = make(100, "firefighter", {5, 0, 5});
  qsf::Entity& target = make(101, "marker", {25, 0, 5});
};

TEST_F(TurnToActionTest, AUnitTurnsAtItsPaceUntilItFacesTheTarget) {
  push<em5::TurnToAction>(person).init(target, false, 90);
  EXPECT_NEAR(-90, degreesToTarget(), 0.01f);
  runSeconds(0.5);
  EXPECT_NEAR(-45, degreesToTarget(), 0.1f);
  EXPECT_FALSE(isIdle(person));
  EXPECT_NEAR(10, framesUntilIdle(person), 1);
  EXPECT_NEAR(0, degreesToTarget(), 0.01f);
}

TEST_F(TurnToActionTest, ReversedTheBackFacesTheTarget) {
  push<em5::TurnToAction>(person).init(target, true, 270.0);
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_NEAR(180, std::abs(degreesToTarget()), 0.01f);
}

TEST_F(TurnToActionTest, ATargetThatMovesIsFollowed) {
  push<em5::TurnToAction>(person).init(target, false, 90);
  runSeconds(0.5);
  target.getComponent<qsf::TransformComponent>()->setPosition({5, 0, 55});
  EXPECT_NE(-1, framesUntilIdle(person));
  EXPECT_NEAR(0, degreesToTarget(), 0.01f);
}

TEST_F(TurnToActionTest, APaceThatIsNoneCountsAsTheDefault) {
  push<em5::TurnToAction>(person).init(target, false, std::numeric_limits<float>::quiet_NaN());
  EXPECT_NEAR(7, framesUntilIdle(person), 1); // 90 degrees at 270 a second
}

TEST_F(TurnToActionTest, ATurnUnderWayGivesWay) {
  person.getComponent<qsf::MovableComponent>()->moveToRotation(glm::angleAxis(3.0f, glm::vec3(0, 1, 0)));
  push<em5::TurnToAction>(person).init(target);
  EXPECT_NE(-1, framesUntilIdle(person));
  runSeconds(1);
  EXPECT_NEAR(0, degreesToTarget(), 0.01f);
}

TEST_F(TurnToActionTest, NothingToTurnToEndsIt) {
  auto& actions = actionsOf(person);
  actions.pushActionById("em5::TurnToAction");
  actions.pushAction<em5::TurnToAction>().init(person);
  actions.pushAction<em5::TurnToAction>().init(std::uint64_t{4711});
  target.getComponent<qsf::TransformComponent>()->setPosition({5, 30, 5}); // straight above
  actions.pushAction<em5::TurnToAction>().init(target);
  actions.pushAction<em5::TurnToAction>().init(target, true);
  runSeconds(0.25);
  EXPECT_TRUE(isIdle(person));
  EXPECT_EQ(glm::quat(1, 0, 0, 0), person.getComponent<qsf::TransformComponent>()->getRotation());
}

TEST_F(TurnToActionTest, WhatTurnsAlongIsNotTurnedTo) {
  target.getOrCreateComponent<qsf::LinkComponent>()->setParentId(100);
  push<em5::TurnToAction>(person).init(target);
  runSeconds(0.05);
  EXPECT_TRUE(isIdle(person));
}

TEST_F(TurnToActionTest, ItIsKnownByTwoNamesAndTellsWhatItWasGiven) {
  const qsf::Action& made = actionsOf(person).pushActionById("qsf::TurnToAction");
  EXPECT_EQ("em5::TurnToAction", made.getTypeName());
  EXPECT_EQ(em5::TurnToAction::ACTION_ID, made.getTypeId());
  actionsOf(person).clearPlan();
  push<qsf::TurnToAction>(person).init(target, true, 270.0);
  EXPECT_EQ((qsf::action::Description{{"target", "101"}, {"reverse", "1"}, {"speed", "270"}}),
            actionsOf(person).getCurrentAction()->describe());
}

}
