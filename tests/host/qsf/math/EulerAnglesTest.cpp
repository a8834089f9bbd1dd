#include "qsf/math/EulerAngles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using qsf::EulerAngles;

constexpr int GAME_ORDER = 17;
constexpr float RIGHT_ANGLE = 1.57079633f;

/// Angle between what two rotations make of things; the sign of a quaternion doesn't matter.
double distance(const glm::quat& a, const glm::quat& b) {
  return 2.0 * std::acos(std::min(1.0, static_cast<double>(std::abs(glm::dot(glm::dquat(a), glm::dquat(b))))));
}

void expectNear(const glm::vec3& actual, const glm::vec3& expected, float tolerance) {
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(actual[i], expected[i], tolerance) << "axis " << i;
}

TEST(EulerAngles, ARightAngleOfHeadingReadsBack) {
  const glm::quat rotation = EulerAngles::eulerToQuaternion({RIGHT_ANGLE, 0, 0}, GAME_ORDER);
  EXPECT_NEAR(rotation.w, 0.70710678f, 1e-6f);
  EXPECT_EQ(rotation.x, 0.0f);
  EXPECT_NEAR(rotation.y, 0.70710678f, 1e-6f);
  EXPECT_EQ(rotation.z, 0.0f);
  expectNear(EulerAngles::quaternionToEuler(rotation, GAME_ORDER), {RIGHT_ANGLE, 0, 0}, 1e-4f);
}

TEST(EulerAngles, TheAnglesTurnAboutYAndXAndZ) {
  constexpr int AXES[] = {1, 0, 2};
  for (int at = 0; at < 3; ++at) {
    glm::vec3 angles(0.0f);
    angles[at] = 0.5f;
    glm::vec3 direction(0.0f);
    direction[AXES[at]] = 1.0f;
    const glm::quat rotation = EulerAngles::eulerToQuaternion(angles, GAME_ORDER);
    EXPECT_LT(distance(rotation, glm::angleAxis(0.5f, direction)), 1e-3) << at;
    expectNear(EulerAngles::quaternionToEuler(rotation, GAME_ORDER), angles, 1e-6f);
  }
}

TEST(EulerAngles, TheGameTurnsAboutYThenXThenZOfTheTurnedThing) {
  const glm::quat expected = glm::angleAxis(0.7f, glm::vec3(0, 1, 0)) * glm::angleAxis(0.3f, glm::vec3(1, 0, 0)) *
                             glm::angleAxis(-0.4f, glm::vec3(0, 0, 1));
  EXPECT_LT(distance(EulerAngles::eulerToQuaternion({0.7f, 0.3f, -0.4f}, GAME_ORDER), expected), 1e-3);
}

TEST(EulerAngles, AnglesReadBackOverTheWholeRange) {
  for (float x = -1.5f; x <= 1.5f; x += 0.25f)
    for (float y = -3.0f; y <= 3.0f; y += 0.5f)
      for (float z = -3.0f; z <= 3.0f; z += 0.5f) {
        const glm::vec3 angles(y, x, z);
        const glm::quat rotation = EulerAngles::eulerToQuaternion(angles, GAME_ORDER);
        EXPECT_NEAR(glm::length(rotation), 1.0f, 1e-5f);
        expectNear(EulerAngles::quaternionToEuler(rotation, GAME_ORDER), angles, 1e-4f);
      }
}

TEST(EulerAngles, EveryOrderReadsBackAsTheSameRotation) {
  for (int order = 0; order < 24; ++order)
    for (float x = -3.0f; x <= 3.0f; x += 0.75f)
      for (float y = -3.0f; y <= 3.0f; y += 0.75f)
        for (float z = -3.0f; z <= 3.0f; z += 0.75f) {
          const glm::quat rotation = EulerAngles::eulerToQuaternion({x, y, z}, order);
          const glm::vec3 angles = EulerAngles::quaternionToEuler(rotation, order);
          ASSERT_LT(distance(EulerAngles::eulerToQuaternion(angles, order), rotation), 2e-3)
              << "order " << order << " angles " << x << " " << y << " " << z;
        }
}

TEST(EulerAngles, AtThePolesTheRotationStaysAndOneAngleTakesAll) {
  for (const float pole : {RIGHT_ANGLE, -RIGHT_ANGLE})
    for (float y = -3.0f; y <= 3.0f; y += 0.5f)
      for (float z = -3.0f; z <= 3.0f; z += 0.5f) {
        const glm::quat rotation = EulerAngles::eulerToQuaternion({y, pole, z}, GAME_ORDER);
        const glm::vec3 angles = EulerAngles::quaternionToEuler(rotation, GAME_ORDER);
        for (int i = 0; i < 3; ++i)
          ASSERT_TRUE(std::isfinite(angles[i]));
        EXPECT_NEAR(angles.y, pole, 2e-3f);
        EXPECT_LT(distance(EulerAngles::eulerToQuaternion(angles, GAME_ORDER), rotation), 3e-3);
      }
}

TEST(EulerAngles, StrangeQuaternionsGiveFiniteAngles) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinity = std::numeric_limits<float>::infinity();
  for (const glm::quat& rotation : {glm::quat(0, 0, 0, 0), glm::quat(nan, 0, 0, 0), glm::quat(1, infinity, 0, 0)})
    EXPECT_EQ(EulerAngles::quaternionToEuler(rotation, GAME_ORDER), glm::vec3(0.0f));
  // One that isn't of unit length means the same rotation.
  const glm::quat rotation = EulerAngles::eulerToQuaternion({0.1f, 0.2f, 0.3f}, GAME_ORDER);
  expectNear(EulerAngles::quaternionToEuler(rotation * 5.0f, GAME_ORDER), {0.1f, 0.2f, 0.3f}, 1e-5f);
}

}
