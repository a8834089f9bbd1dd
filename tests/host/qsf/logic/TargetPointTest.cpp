#include "qsf/logic/TargetPoint.h"
#include "qsf/math/Heading.h"

#include <gtest/gtest.h>
#include <limits>

using qsf::logic::TargetPoint;

TEST(TargetPointTest, APlainOneIsReachedAtItsPlaceOnly) {
  const TargetPoint point({10, 2, 0});
  EXPECT_EQ(glm::vec3(10, 2, 0), point.getDestination({0, 0, 0}));
  EXPECT_TRUE(point.isReachedAt({10, 2, 0}));
  EXPECT_FALSE(point.isReachedAt({10, 2, 0.01f}));
  EXPECT_EQ(std::nullopt, point.getRotation());
}

TEST(TargetPointTest, HeightMayBeLeftOut) {
  const TargetPoint point({10, 2, 0}, true);
  EXPECT_EQ(glm::vec3(10, 7, 0), point.getDestination({0, 7, 0}));
  EXPECT_TRUE(point.isReachedAt({10, 30, 0}));
}

TEST(TargetPointTest, ToleranceAndStandOffKeepAway) {
  const TargetPoint point({10, 0, 0}, false, 1, 4);
  EXPECT_EQ(glm::vec3(6, 0, 0), point.getDestination({0, 0, 0}));
  EXPECT_TRUE(point.isReachedAt({5.5f, 0, 0}));
  EXPECT_FALSE(point.isReachedAt({4.5f, 0, 0}));
  EXPECT_TRUE(point.isReachedAt({9, 0, 0}));
}

TEST(HeadingTest, TheAngleTakesTheNegativeZAxisToTheTarget) {
  const glm::quat none(1, 0, 0, 0);
  EXPECT_NEAR(0, qsf::getAngleToFace({0, 0, 0}, none, {0, 50, -10}), 1e-6f);
  EXPECT_NEAR(-1.5707963f, qsf::getAngleToFace({0, 0, 0}, none, {10, 0, 0}), 1e-6f);
  EXPECT_NEAR(1.5707963f, qsf::getAngleToFace({0, 0, 0}, none, {-10, 0, 0}), 1e-6f);
  const glm::quat turned = qsf::turnAboutY(none, qsf::getAngleToFace({1, 2, 3}, none, {7, 0, 9}));
  EXPECT_NEAR(0, qsf::getAngleToFace({1, 2, 3}, turned, {7, 0, 9}), 1e-5f);
}

TEST(HeadingTest, WhatIsStraightAboveOrNowhereNeedsNoTurn) {
  const glm::quat none(1, 0, 0, 0);
  EXPECT_EQ(0, qsf::getAngleToFace({0, 0, 0}, none, {0, 10, 0}));
  EXPECT_EQ(0, qsf::getAngleToFace({0, 0, 0}, none, {std::numeric_limits<float>::quiet_NaN(), 0, 0}));
}
