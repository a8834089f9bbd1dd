#include "qsf/physics/BoxTouch.h"

#include "qsf/base/Random.h"

#include <gtest/gtest.h>

#include <optional>

using qsf::boxesTouch;

namespace {

constexpr btScalar TOLERANCE = btScalar(1e-4);

btTransform at(const btVector3& place, const btQuaternion& turn = btQuaternion(0, 0, 0, 1)) {
  return btTransform(turn, place);
}

/// Asks the library, which knows all shapes: the distance, negative inside, if it is below `limit`.
class Library {
public:
  std::optional<btScalar> distance(btBoxShape& first, const btTransform& firstPlace, btBoxShape& second,
                                   const btTransform& secondPlace, btScalar limit) {
    btCollisionObject one, other;
    one.setCollisionShape(&first);
    one.setWorldTransform(firstPlace);
    other.setCollisionShape(&second);
    other.setWorldTransform(secondPlace);
    struct Nearest : btCollisionWorld::ContactResultCallback {
      std::optional<btScalar> distance;
      btScalar addSingleResult(btManifoldPoint& point, const btCollisionObjectWrapper*, int, int,
                               const btCollisionObjectWrapper*, int, int) override {
        if (!distance || point.getDistance() < *distance) distance = point.getDistance();
        return 0;
      }
    } nearest;
    nearest.m_closestDistanceThreshold = limit;
    mWorld.contactPairTest(&one, &other, nearest);
    return nearest.distance;
  }

private:
  btDefaultCollisionConfiguration mConfiguration;
  btCollisionDispatcher mDispatcher{&mConfiguration};
  btDbvtBroadphase mBroadphase;
  btCollisionWorld mWorld{&mDispatcher, &mBroadphase, &mConfiguration};
};

btScalar draw(float limit) { return qsf::Random::getRandomFloat(-limit, limit); }
btVector3 drawHalfExtents() {
  return {btScalar(0.2) + std::abs(draw(6)), btScalar(0.2) + std::abs(draw(6)), btScalar(0.2) + std::abs(draw(6))};
}

TEST(BoxTouch, FacesThatMeetTouchAndAGapParts) {
  const btBoxShape sensor({10, 5, 10});
  const btBoxShape car({2, 1.5f, 4});
  EXPECT_TRUE(boxesTouch(sensor, at({0, 0, 0}), car, at({12, 0, 0}), TOLERANCE));
  EXPECT_TRUE(boxesTouch(car, at({12, 0, 0}), sensor, at({0, 0, 0}), TOLERANCE));
  EXPECT_FALSE(boxesTouch(sensor, at({0, 0, 0}), car, at({12.01f, 0, 0}), TOLERANCE));
  EXPECT_FALSE(boxesTouch(sensor, at({0, 0, 0}), car, at({0, 6.51f, 0}), TOLERANCE));
  EXPECT_TRUE(boxesTouch(sensor, at({0, 0, 0}), car, at({0, 0, 0}), TOLERANCE)); // one inside the other
}

TEST(BoxTouch, EdgesThatCrossArePartedByNeitherBoxesFaces) {
  const btBoxShape beam({10, 1, 1});
  // Two beams on edge, one across the other: their edges meet where the middles are twice a half diagonal apart.
  const btQuaternion onEdge({1, 0, 0}, SIMD_PI / 4);
  const btQuaternion across = btQuaternion({0, 1, 0}, SIMD_PI / 2) * onEdge;
  const btScalar diagonal = 2 * std::sqrt(btScalar(2));
  EXPECT_TRUE(boxesTouch(beam, at({0, 0, 0}, onEdge), beam, at({0, diagonal - 0.01f, 0}, across), TOLERANCE));
  EXPECT_FALSE(boxesTouch(beam, at({0, 0, 0}, onEdge), beam, at({0, diagonal + 0.01f, 0}, across), TOLERANCE));
}

TEST(BoxTouch, AgreesWithTheLibrary) {
  constexpr btScalar UNSURE = btScalar(0.032); // the library rounds corners, by its margin of 0.04
  qsf::Random::setSeed(7);
  Library library;
  int touching = 0;
  for (int round = 0; round < 20000; ++round) {
    btBoxShape first(drawHalfExtents());
    btBoxShape second(drawHalfExtents());
    const auto drawTurn = [&] {
      // Turned any way, about the vertical as units are, by next to nothing, not at all.
      if (round % 4 == 0) return btQuaternion(draw(1), draw(1), draw(1), draw(1)).normalized();
      if (round % 4 == 3) return btQuaternion(0, 0, 0, 1);
      return btQuaternion({0, 1, 0}, round % 4 == 1 ? draw(3) : draw(1e-4f));
    };
    const btTransform firstPlace = at({draw(4), draw(4), draw(4)}, drawTurn());
    const btTransform secondPlace = at({draw(9), draw(9), draw(9)}, drawTurn());
    const bool touches = boxesTouch(first, firstPlace, second, secondPlace, TOLERANCE);
    touching += touches;
    const std::optional<btScalar> distance = library.distance(first, firstPlace, second, secondPlace, btScalar(0.05));
    if (distance && std::abs(*distance) < UNSURE) continue;
    ASSERT_EQ(touches, distance && *distance < 0) << "round " << round << ", distance " << distance.value_or(1);
    ASSERT_EQ(touches, boxesTouch(second, secondPlace, first, firstPlace, TOLERANCE)) << "round " << round;
  }
  EXPECT_GT(touching, 4000);
  EXPECT_LT(touching, 16000);
}

}
