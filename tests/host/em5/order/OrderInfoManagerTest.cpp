#include "em5/order/OrderInfoManager.h"

#include "em5/component/CommandableComponent.h"
#include "em5/game/Game.h"
#include "em5/map/EntityHelper.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/LoadError.h"

namespace {

using OrderInfoManagerTest = SessionTest;

TEST_F(OrderInfoManagerTest, ReadsTheOrderInfosOfAllProjects) {
  const std::string project = writeProject("mine");
  write(
      "mine", "order_info/fire/ladder.json",
      R"({"name": "Ladder", "prefab": "em5/prefab/test/fire_engine", "department": "fire", "miniMapIcon": "UNIT_FIREFIGHTER",
            "personnelSpace": 6, "tags": ["IgnoreSmoke"], "startPersonnel": [{"orderInfo": "Firefighter", "count": 2}]})");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  em5::OrderInfoManager& manager = qsf::UniqueInstance<em5::Game>()->getOrderInfoManager();
  const em5::OrderInfo* info = manager.getOrderInfoById("Ladder");
  ASSERT_TRUE(info);
  EXPECT_EQ(info->getPrefab().getLocalAssetId(), qsf::StringHash("em5/prefab/test/fire_engine"));
  EXPECT_EQ(info->getDepartment(), em5::OrderInfo::FIRE);
  EXPECT_EQ(info->getPersonnelSpace(), 6);
  EXPECT_TRUE(info->isTagSet("IgnoreSmoke"));
  ASSERT_EQ(info->getStartPersonnelList().size(), 1u);
  EXPECT_EQ(info->getStartPersonnelList()[0].orderInfo, "Firefighter");
  EXPECT_EQ(info->getStartPersonnelList()[0].count, 2);
  EXPECT_EQ(manager.getOrderInfoById("Nothing"), nullptr);

  manager.getOrderInfoByIdForWriting("Ladder")->setDepartment(em5::OrderInfo::POLICE);
  session->requestRestart();
  EXPECT_EQ(qsf::UniqueInstance<em5::Game>()->getOrderInfoManager().getOrderInfoById("Ladder")->getDepartment(),
            em5::OrderInfo::FIRE);

  qsf::Entity* unit = qsf::getMainMap().createEntity(100);
  EXPECT_EQ(em5::EntityHelper(*unit).getOrderInfo(), nullptr);
  unit->getOrCreateComponent<em5::CommandableComponent>()->setOrderInfo("Ladder");
  ASSERT_TRUE(em5::EntityHelper(*unit).getOrderInfo());
  EXPECT_EQ(em5::EntityHelper(*unit).getOrderInfo()->getName(), "Ladder");
}

TEST_F(OrderInfoManagerTest, ADepartmentThatNobodyKnowsIsAFault) {
  const std::string project = writeProject("mine");
  write("mine", "order_info/fire/ladder.json", R"({"name": "Ladder", "department": "Fire"})");
  open().mountMod(project);
  EXPECT_THROW(session->startGame(EMPTY_MAP), qsf::LoadError);
}

TEST_F(OrderInfoManagerTest, AFaultyOrderInfoKeepsTheGameFromStarting) {
  const std::string project = writeProject("mine");
  write("mine", "order_info/fire/ladder.json", R"({"name": "Ladder", "personnelSpace": -1})");
  open().mountMod(project);
  try {
    session->startGame(EMPTY_MAP);
    FAIL() << "started";
  } catch (const qsf::LoadError& error) {
    EXPECT_NE(std::string(error.what()).find("ladder.json: /personnelSpace"), std::string::npos) << error.what();
  }
  EXPECT_FALSE(session->isGameRunning());
}

}
