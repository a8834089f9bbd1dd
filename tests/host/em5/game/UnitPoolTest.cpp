#include "em5/game/UnitPool.h"

#include "em5/game/Game.h"
#include "em5/game/UnitPoolHelper.h"
#include "em5/order/OrderInfoManager.h"
#include "host/em5/SessionFixture.h"
#include "qsf/base/LoadError.h"

#include <limits>

namespace {

class UnitPoolTest : public SessionTest {
protected:
  static const em5::OrderInfo& order(const char* name) {
    return *qsf::UniqueInstance<em5::Game>()->getOrderInfoManager().getOrderInfoById(qsf::StringHash(name));
  }
  static em5::UnitPool& pool() {
    return qsf::UniqueInstance<em5::Game>()->getPlayerManager()->getLocalPlayer()->getUnitPool();
  }
};

TEST_F(UnitPoolTest, UnitsOnTheMapAreNotAvailable) {
  play();
  EXPECT_EQ(2, pool().getNumberAvailable(order("DLK")));
  qsf::getMainMap().createEntity(100);
  pool().registerUnitInMap(order("DLK"), 100);
  pool().registerUnitInMap(order("DLK"), 100);
  pool().registerUnitInMap(order("DLK"), 999);
  EXPECT_EQ(1, pool().getNumberInMap(order("DLK")));
  EXPECT_EQ(1, pool().getNumberAvailable(order("DLK")));
  qsf::getMainMap().destroyObjectById(100);
  EXPECT_EQ(2, pool().getNumberAvailable(order("DLK")));
}

TEST_F(UnitPoolTest, AMaximumStaysWithinWhatCanBeCounted) {
  play();
  constexpr int MOST = std::numeric_limits<int>::max();
  pool().increaseNumberAvailable("DLK", MOST);
  EXPECT_EQ(MOST, pool().getNumberMaxAvailable(order("DLK")));
  pool().increaseNumberAvailable("DLK", std::numeric_limits<int>::min());
  EXPECT_EQ(0, pool().getNumberMaxAvailable(order("DLK")));
  EXPECT_EQ(0, pool().getNumberMaxAvailable(order("Police")));
}

TEST_F(UnitPoolTest, TheProjectMountedLastWins) {
  const std::string project = writeProject("mine");
  write("mine", "unit_pool/my/default_unitpool.json", R"({"units": [{"orderInfo": "DLK", "maximum": 9}]})");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  EXPECT_EQ(9, pool().getNumberMaxAvailable(order("DLK")));
  EXPECT_EQ(0, pool().getNumberMaxAvailable(order("RTW")));
  EXPECT_TRUE(pool().load("em5/unit_pool/freeplay/default_unitpool"));
  EXPECT_EQ(2, pool().getNumberMaxAvailable(order("DLK")));
}

TEST_F(UnitPoolTest, AFaultyPoolIsToldAndChangesNothing) {
  const std::string project = writeProject("mine");
  write("mine", "unit_pool/my/broken.json", R"({"units": [{"orderInfo": "DLK", "maximum": -1}]})");
  open().mountMod(project);
  session->startGame(EMPTY_MAP);
  em5::UnitPoolHelper().setUnitPoolForLocalPlayer("broken");
  EXPECT_TRUE(logged(4, "broken.json: /units/0/maximum"));
  EXPECT_EQ(2, pool().getNumberMaxAvailable(order("DLK")));
}

TEST_F(UnitPoolTest, AFaultyPoolOfTheStartKeepsTheGameFromStarting) {
  const std::string project = writeProject("mine");
  write("mine", "unit_pool/my/default_unitpool.json", "{}");
  open().mountMod(project);
  EXPECT_THROW(session->startGame(EMPTY_MAP), qsf::LoadError);
}

}
