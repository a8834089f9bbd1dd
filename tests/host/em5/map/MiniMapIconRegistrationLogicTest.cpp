#include "em5/map/MiniMapIconRegistrationLogic.h"

#include <gtest/gtest.h>

using em5::MiniMapIconRegistrationLogic;

namespace {

TEST(MiniMapIconRegistrationLogicTest, NamesOfUnitsHaveTheirTypes) {
  EXPECT_EQ(8, MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType("UNIT_FIREFIGHTER"));
  EXPECT_EQ(16, MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType("UNIT_VEHICLE_FIREPLANE"));
  EXPECT_EQ(0, MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType("BRIDGE"));
  EXPECT_EQ(0, MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType(""));
}

TEST(MiniMapIconRegistrationLogicTest, AnEntityHasOneIcon) {
  MiniMapIconRegistrationLogic logic;
  EXPECT_EQ(nullptr, logic.findIcon(100));
  logic.registerIcon(100, 8, false);
  logic.registerIcon(100, 9, true);
  ASSERT_NE(nullptr, logic.findIcon(100));
  EXPECT_EQ(9, logic.findIcon(100)->type);
  EXPECT_TRUE(logic.findIcon(100)->isMarked);
}

}
