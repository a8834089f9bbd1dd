#include "qsf/game/EventTagComponent.h"

#include "host/qsf/TestWorld.h"

namespace {

using EventTagComponentTest = host_test::WorldTest;

TEST_F(EventTagComponentTest, HasWholeTagsOrPartsOfThem) {
  auto& tags = *makeEntity(100).getOrCreateComponent<qsf::game::EventTagComponent>();
  tags.setPropertyByString("Tags", "mill firework");
  EXPECT_TRUE(tags.hasTag("mill", false));
  EXPECT_FALSE(tags.hasTag("fire", false));
  EXPECT_TRUE(tags.hasTag("fire", true));
  EXPECT_FALSE(tags.hasTag("water", true));
}

}
