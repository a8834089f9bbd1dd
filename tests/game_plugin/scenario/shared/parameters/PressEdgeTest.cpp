#include "game_plugin/scenario/shared/parameters/PressEdge.h"

#include <gtest/gtest.h>

using script::PressEdge;

namespace {

TEST(PressEdgeTest, HoldsOnceAPress) {
  PressEdge edge;
  EXPECT_FALSE(edge.update(false));
  EXPECT_TRUE(edge.update(true));
  EXPECT_FALSE(edge.update(true));
  EXPECT_FALSE(edge.update(false));
  EXPECT_TRUE(edge.update(true));
}

}
