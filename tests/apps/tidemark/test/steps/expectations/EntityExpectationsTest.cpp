// Expectations on what no script of a test can bring about by itself, and their errors.
#include "apps/tidemark/test/RunTest.h"
#include "em5/action/EnterVehicleAction.h"
#include "em5/action/PlayAnimationAction.h"
#include "em5/component/StatusOverlayComponent.h"
#include "qsf/action/ActionComponent.h"
#include "qsf/map/Entity.h"

namespace tidemark::test {

namespace {

const std::string WORLD =
    "$ @for 0\n$ @entity 100 prefab firefighter at 0 0 0\n$ @entity 101 prefab ambulance at 90 0 0\n";

void expectNoFailures(const std::vector<Failure>& failures) {
  for (const Failure& failure : failures)
    ADD_FAILURE() << failure.line << ": " << failure.expected << ": " << failure.found;
}

// The one failure of a test that consists of that expectation on the world.
Failure failureOf(
    const std::string& expectation, const Action& look = [](TestSession&) {}) {
  const std::vector<Failure> failures = runWith(WORLD + "$ @expect " + expectation + "\n", look);
  EXPECT_EQ(failures.size(), 1u) << expectation;
  return failures.empty() ? Failure{} : failures.front();
}

void expectError(const std::string& expectation, const std::string& text) {
  const Failure failure = failureOf(expectation);
  EXPECT_EQ(failure.kind, Failure::Kind::ERROR) << expectation;
  EXPECT_NE(failure.expected.find(text), std::string::npos) << failure.expected;
}

void showOverlay(TestSession& session) {
  qsf::Entity& entity = session.findEntity(100);
  em5::StatusOverlayComponent::showIcon(entity, 5, true);
  em5::StatusOverlayComponent::showIcon(entity, 13, true);
  em5::StatusOverlayComponent::showBarOverlay(entity, 5, 0.25f);
}

TEST(OverlayExpectations, TellIconsAndBars) {
  expectNoFailures(runWith(WORLD + "$ @expect 100 icon 5 on\n$ @expect 100 icon 6 off\n$ @expect 101 icon 5 off\n"
                                   "$ @expect 100 bar 5 == 0.25\n$ @expect 100 bar 5 == 0.3 within 0.06\n"
                                   "$ @expect 100 bar 4 off\n$ @expect 101 bar 5 off\n",
                           showOverlay));
}

TEST(OverlayExpectations, FailWithWhatShows) {
  EXPECT_EQ(failureOf("100 icon 5 off", showOverlay).found, "icons that show: 5 13");
  EXPECT_EQ(failureOf("100 icon 6 on", showOverlay).found, "icons that show: 5 13");
  EXPECT_EQ(failureOf("101 icon 5 on", showOverlay).found, "no icons show");
  EXPECT_EQ(failureOf("100 bar 5 == 0.3", showOverlay).found, "bars that show: 5 at 0.25");
  EXPECT_EQ(failureOf("100 bar 5 off", showOverlay).found, "bars that show: 5 at 0.25");
  EXPECT_EQ(failureOf("100 bar 4 == 0", showOverlay).found, "bars that show: 5 at 0.25");
  EXPECT_EQ(failureOf("101 bar 5 == 0", showOverlay).found, "no bars show");
}

void enterVehicle(TestSession& session) {
  auto& actions = *session.findEntity(100).getComponent<qsf::ActionComponent>();
  actions.pushAction<em5::EnterVehicleAction>().init(session.findEntity(101), em5::EnterVehicleAction::RUN);
  actions.pushAction<em5::PlayAnimationAction>(7).init("em5/animation/test/nod", true, false, false);
}

TEST(PlanExpectations, TellWhatAnActionWasGiven) {
  expectNoFailures(
      runWith(WORLD + "$ @at 0 list vehicles = 101\n$ @expect 100 action em5::EnterVehicleAction with target=101\n"
                      "$ @expect 100 action em5::EnterVehicleAction with approach=1 target=101\n"
                      "$ @expect 100 action em5::EnterVehicleAction with target=vehicles[0]\n"
                      "$ @expect 100 plan == em5::EnterVehicleAction:100 em5::PlayAnimationAction:7\n",
              enterVehicle));
  EXPECT_EQ(failureOf("100 action em5::EnterVehicleAction with target=102", enterVehicle).found,
            "em5::EnterVehicleAction target=101 approach=1");
  EXPECT_EQ(failureOf("100 action em5::EnterVehicleAction with target=101 colour=red", enterVehicle).found,
            "em5::EnterVehicleAction target=101 approach=1");
  EXPECT_EQ(failureOf("100 action em5::MoveAction with target=101", enterVehicle).found,
            "em5::EnterVehicleAction target=101 approach=1");
}

TEST(PlanExpectations, KnowAClassByItsOtherNames) {
  expectNoFailures(runWith(WORLD + "$ @expect 100 action qsf::TurnToAction\n$ @expect 100 action em5::TurnToAction\n",
                           [](TestSession& session) {
                             session.findEntity(100).getComponent<qsf::ActionComponent>()->pushActionById(
                                 "qsf::TurnToAction");
                           }));
}

TEST(PlanExpectations, ATypeThatNobodyKnowsIsAnError) {
  expectError("100 plan lacks em5::MoveActoin",
              "there is no action 'em5::MoveActoin' (did you mean \"em5::MoveAction\"");
  expectError("100 plan == em5::Dance:1", "there is no action 'em5::Dance'");
  expectError("100 plan contains em5::PersonComponent", "there is no action 'em5::PersonComponent'");
  expectError("100 action em5::Dance", "there is no action 'em5::Dance'");
  expectError("100 logic em5::FiremanLogik missing",
              "there is no game logic 'em5::FiremanLogik' (did you mean \"em5::FiremanLogic\"");
  expectError("100 logic em5::PersonComponent missing", "there is no game logic 'em5::PersonComponent'");
}

TEST(WorldExpectations, WhatNobodyKnowsIsAnError) {
  expectError("100 offset em5/animation/test/nood == 0", "there is no animation 'em5/animation/test/nood'");
  expectError("call em5::HintHelper::showHint before em5::HintHelper::showHunt", "'em5::HintHelper::showHunt'");
  expectError("call em5::HintHelper::showHunt before em5::HintHelper::showHint", "'em5::HintHelper::showHunt'");
}

TEST(PropertyExpectations, AskForWhatAPropertyHas) {
  expectError("100 qsf::MetadataComponent.Name size 1", "qsf::MetadataComponent.Name is no array");
  expectError("100 qsf::MetadataComponent.Names size 1", "no property 'Names'");
  expectError("100 qsf::TransformComponent.Position < 5", "is no number but \"0 0 0\"");
  expectError("100 qsf::NoComponent.X containing y", "there is no component 'qsf::NoComponent'");
}

}

}
