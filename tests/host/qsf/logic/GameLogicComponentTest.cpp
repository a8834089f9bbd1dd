#include "qsf/logic/GameLogicComponent.h"
#include "em5/logic/FiremanLogic.h"
#include "host/qsf/TestWorld.h"

namespace {

using em5::FiremanLogic;
using qsf::GameLogicComponent;

class GameLogicComponentTest : public host_test::WorldTest {
protected:
  GameLogicComponentTest() { mountBase(); }
  GameLogicComponent& logics = *makeEntity(100).getOrCreateComponent<GameLogicComponent>();
};

TEST_F(GameLogicComponentTest, ALogicIsMadeOnceFoundAndDeleted) {
  EXPECT_EQ(nullptr, logics.getGameLogic<FiremanLogic>());
  qsf::GameLogic* made = logics.createGameLogicByTypeId(FiremanLogic::GAME_LOGIC_ID);
  ASSERT_NE(nullptr, made);
  EXPECT_EQ(made, logics.createGameLogicByTypeId(FiremanLogic::GAME_LOGIC_ID));
  EXPECT_EQ(made, logics.getGameLogic<FiremanLogic>());
  logics.deleteGameLogicByTypeId("em5::NoLogic");
  EXPECT_EQ(made, logics.getGameLogic<FiremanLogic>());
  logics.deleteGameLogicByTypeId(FiremanLogic::GAME_LOGIC_ID);
  EXPECT_EQ(nullptr, logics.getGameLogic<FiremanLogic>());
}

TEST_F(GameLogicComponentTest, WhatIsNoGameLogicIsLoggedAndNotMade) {
  EXPECT_EQ(nullptr, logics.createGameLogicByTypeId("em5::NoLogic"));
  EXPECT_EQ(nullptr, logics.createGameLogicByTypeId("em5::PersonComponent"));
  ASSERT_EQ(2u, log.size());
  EXPECT_NE(std::string::npos, log[1].find("\"em5::PersonComponent\""));
}

TEST_F(GameLogicComponentTest, NamesAreReadAndSetByReflection) {
  EXPECT_EQ("", logics.getPropertyAsString("GameLogics"));
  logics.setPropertyByString("GameLogics", " em5::FiremanLogic  em5::FiremanLogic");
  EXPECT_EQ("em5::FiremanLogic", logics.getPropertyAsString("GameLogics"));
  const auto* logic = logics.getGameLogic<FiremanLogic>();
  logics.setPropertyByString("GameLogics", "em5::FiremanLogic");
  EXPECT_EQ(logic, logics.getGameLogic<FiremanLogic>()) << "it was made anew";
  EXPECT_THROW(logics.setPropertyByString("GameLogics", "em5::NoLogic"), std::exception);
  EXPECT_EQ(logic, logics.getGameLogic<FiremanLogic>());
  logics.setPropertyByString("GameLogics", "");
  EXPECT_EQ(nullptr, logics.getGameLogic<FiremanLogic>());
}

TEST_F(GameLogicComponentTest, FirefightersHaveTheirLogicOthersDoNot) {
  const auto make = [&](const char* prefab) { return map.createObjectByLocalPrefabAssetId(qsf::StringHash(prefab)); };
  const auto* firefighter = make("em5/prefab/test/firefighter")->getComponent<GameLogicComponent>();
  ASSERT_NE(nullptr, firefighter);
  EXPECT_NE(nullptr, firefighter->getGameLogic<FiremanLogic>());
  EXPECT_EQ(nullptr, make("em5/prefab/test/paramedic")->getComponent<GameLogicComponent>());
}

}
