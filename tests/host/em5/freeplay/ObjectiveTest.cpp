#include "em5/freeplay/ObjectiveList.h"

#include "host/em5/SessionFixture.h"

#include <limits>

namespace {

using ObjectiveTest = SessionTest;
using em5::Objective;

TEST(Objective, IsReachedWhenItsNumberIs) {
  Objective objective;
  EXPECT_FALSE(objective.isReached()) << "it needs nothing";
  objective.setNeededNumber(2);
  objective.setCurrentNumber(1);
  EXPECT_FALSE(objective.isReached());
  objective.setCurrentNumber(2);
  EXPECT_TRUE(objective.isReached());
  objective.setCurrentNumber(3);
  EXPECT_TRUE(objective.isReached());
  objective.setNeededNumber(-1);
  EXPECT_FALSE(objective.isReached());
}

TEST(Objective, NumbersStopAtTheEndOfTheirRange) {
  Objective objective;
  objective.setNeededNumber(std::numeric_limits<int>::max());
  objective.increaseNeededNumber(nullptr);
  EXPECT_EQ(objective.getNeededNumber(), std::numeric_limits<int>::max());
  objective.setCurrentNumber(std::numeric_limits<int>::max());
  objective.increaseCurrentNumber(nullptr);
  EXPECT_EQ(objective.getCurrentNumber(), std::numeric_limits<int>::max());
  objective.setNeededNumber(std::numeric_limits<int>::min());
  objective.decreaseNeededNumber(nullptr);
  EXPECT_EQ(objective.getNeededNumber(), std::numeric_limits<int>::min());
}

TEST_F(ObjectiveTest, WaitsForEntitiesUntilTheyAreDone) {
  play();
  const qsf::Entity& a = *qsf::getMainMap().createEntity(100);
  const qsf::Entity& b = *qsf::getMainMap().createEntity(101);
  Objective objective;
  objective.increaseNeededNumber(&a);
  objective.increaseNeededNumber(&b);
  objective.increaseNeededNumber(&b);
  EXPECT_EQ(objective.getNeededNumber(), 3);
  EXPECT_EQ(objective.getEntityIds(), (std::vector<std::uint64_t>{100, 101}));
  objective.increaseCurrentNumber(&a);
  objective.increaseCurrentNumber(&a);
  EXPECT_EQ(objective.getCurrentNumber(), 2) << "an entity that isn't waited for counts, too";
  EXPECT_EQ(objective.getEntityIds(), std::vector<std::uint64_t>{101});
  objective.decreaseNeededNumber(&b);
  EXPECT_EQ(objective.getNeededNumber(), 2);
  EXPECT_TRUE(objective.getEntityIds().empty());
}

TEST_F(ObjectiveTest, ShowsItsNumbersInTheLocalisedText) {
  open().startup();
  Objective objective;
  objective.setNeededNumber(7);
  objective.setCurrentNumber(2);
  objective.setText("EM5_EVENTOBJECTIVE_03");
  EXPECT_EQ(objective.getShownText(), "Extinguish the fires (2 / 7)");
  EXPECT_EQ(objective.getText(), "EM5_EVENTOBJECTIVE_03");
  objective.setText("Done: %d");
  EXPECT_EQ(objective.getShownText(), "Done: 2");
  objective.setText("100% of %d, %d, %d");
  EXPECT_EQ(objective.getShownText(), "100% of 2, 7, %d");
  objective.setText("Wait");
  EXPECT_EQ(objective.getShownText(), "Wait");
}

TEST(ObjectiveList, KeepsTheKindOfWhatIsThere) {
  em5::ObjectiveList list;
  Objective& made = list.getOrCreateObjective("fires", em5::OBJECTIVE_FAIL, 3, 50);
  EXPECT_EQ(made.getNeededNumber(), 0);
  EXPECT_EQ(made.getCurrentNumber(), 0);
  EXPECT_EQ(made.getEventId(), 3u);
  EXPECT_EQ(made.getOrderPriority(), 50);
  list.getOrCreateObjective("cats", em5::OBJECTIVE_OPTIONAL, 3);
  EXPECT_EQ(&list.getOrCreateObjective("fires", em5::OBJECTIVE_REQUIRED, 3), &made);
  EXPECT_EQ(made.getType(), em5::OBJECTIVE_FAIL);
  ASSERT_EQ(list.getObjectives().size(), 2u);
  EXPECT_EQ(list.getObjectives()[1]->getTypeId(), qsf::StringHash("cats"));
  list.removeObjectiveByTypeId("fires");
  list.removeObjectiveByTypeId("dogs");
  EXPECT_EQ(list.getObjectiveByTypeId("fires"), nullptr);
  EXPECT_EQ(list.getObjectives().size(), 1u);
}

TEST_F(ObjectiveTest, IsReflected) {
  open();
  em5::ObjectiveList list;
  Objective& objective = list.getOrCreateObjective("fires", em5::OBJECTIVE_OPTIONAL, 1);
  objective.setPropertyByString("NeededNumber", "4");
  EXPECT_EQ(objective.getNeededNumber(), 4);
  EXPECT_EQ(objective.getPropertyAsString("Type"), "2");
  EXPECT_EQ(objective.getPropertyAsString("OrderPriority"), "100");
}

}
