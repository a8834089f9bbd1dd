#include "qsf/logic/GameLogicComponent.h"
#include "em5/logic/FiremanLogic.h"
#include "host/qsf/TestWorld.h"
#include "qsf/reflection/ClassRegistry.h"

namespace game_logic_test {

/// Notes when it starts and ends.
class NotedLogic : public qsf::GameLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"test::NotedLogic"};
  static void declareCamp() {
    qsf::ClassRegistry::declareOnce<qsf::GameLogic>();
    camp::Class::declare<NotedLogic>("test::NotedLogic").base<qsf::GameLogic>().constructor0();
  }
  static std::string course;

protected:
  void onStartup() override { course += "start" + std::to_string(findEntity()->getId()) + " "; }
  void onShutdown() override { course += "end "; }
};
std::string NotedLogic::course;

/// Of the same kind.
class DerivedLogic : public NotedLogic {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash GAME_LOGIC_ID{"test::DerivedLogic"};
  static void declareCamp() {
    qsf::ClassRegistry::declareOnce<NotedLogic>();
    camp::Class::declare<DerivedLogic>("test::DerivedLogic").base<NotedLogic>().constructor0();
  }
};

}
CAMP_TYPE_NONCOPYABLE(game_logic_test::NotedLogic)
CAMP_TYPE_NONCOPYABLE(game_logic_test::DerivedLogic)

namespace {

using em5::FiremanLogic;
using game_logic_test::DerivedLogic;
using game_logic_test::NotedLogic;
using qsf::GameLogicComponent;

class GameLogicComponentTest : public host_test::WorldTest {
protected:
  GameLogicComponentTest() {
    mountBase();
    qsf::ClassRegistry::declareOnce<NotedLogic>();
    qsf::ClassRegistry::declareOnce<DerivedLogic>();
    NotedLogic::course.clear();
  }
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

TEST_F(GameLogicComponentTest, ALogicStartsAndEndsWithItsComponent) {
  logics.createGameLogicByTypeId(NotedLogic::GAME_LOGIC_ID);
  EXPECT_EQ("", NotedLogic::course) << "the map isn't started";
  map.startup();
  EXPECT_EQ("start100 ", NotedLogic::course);
  logics.shutdown();
  EXPECT_EQ("start100 end ", NotedLogic::course);
  logics.startup();
  EXPECT_EQ("start100 end start100 ", NotedLogic::course);
}

TEST_F(GameLogicComponentTest, ALogicThatComesLaterStartsAtOnceAndEndsWhenItIsDeleted) {
  map.startup();
  logics.createGameLogicByTypeId(NotedLogic::GAME_LOGIC_ID);
  EXPECT_EQ("start100 ", NotedLogic::course);
  logics.deleteGameLogicByTypeId(NotedLogic::GAME_LOGIC_ID);
  EXPECT_EQ("start100 end ", NotedLogic::course);
  logics.setPropertyByString("GameLogics", "test::NotedLogic");
  logics.setPropertyByString("GameLogics", "test::NotedLogic em5::FiremanLogic");
  EXPECT_EQ("start100 end start100 ", NotedLogic::course) << "one that stays goes on";
  logics.setPropertyByString("GameLogics", "em5::FiremanLogic");
  EXPECT_EQ("start100 end start100 end ", NotedLogic::course);
}

TEST_F(GameLogicComponentTest, ADerivedLogicIsFoundByItsBase) {
  qsf::GameLogic* derived = logics.createGameLogicByTypeId(DerivedLogic::GAME_LOGIC_ID);
  EXPECT_EQ(derived, logics.getGameLogic<NotedLogic>());
  EXPECT_EQ(nullptr, logics.getGameLogic<FiremanLogic>());
  EXPECT_NE(derived, logics.createGameLogicByTypeId(NotedLogic::GAME_LOGIC_ID)) << "it is another class";
  logics.deleteGameLogicByTypeId(NotedLogic::GAME_LOGIC_ID);
  EXPECT_EQ("test::DerivedLogic", logics.getPropertyAsString("GameLogics"));
}

}
