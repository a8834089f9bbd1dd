#include "qsf/physics/BoxTouch.h"

#include <cmath>

namespace qsf {

namespace {

/// Between edges that are all but parallel there is no axis to speak of, only rounding; with this much more reach it
/// parts nothing, and what does part the boxes is a face.
constexpr btScalar ROUNDING = btScalar(1e-6);

}

bool boxesTouch(const btBoxShape& first, const btTransform& firstPlace, const btBoxShape& second,
                const btTransform& secondPlace, btScalar tolerance) {
  const btVector3 a = first.getHalfExtentsWithMargin();
  const btVector3 b = second.getHalfExtentsWithMargin();
  // In the first box's own axes.
  const btMatrix3x3 rotation = firstPlace.getBasis().transposeTimes(secondPlace.getBasis());
  const btVector3 way = (secondPlace.getOrigin() - firstPlace.getOrigin()) * firstPlace.getBasis();
  btMatrix3x3 extent = rotation.absolute();

  // The faces of the first, then those of the second.
  for (int i = 0; i < 3; ++i)
    if (std::abs(way[i]) - a[i] - extent[i].dot(b) > tolerance) return false;
  for (int i = 0; i < 3; ++i)
    if (std::abs(rotation.getColumn(i).dot(way)) - b[i] - extent.getColumn(i).dot(a) > tolerance) return false;

  // An edge of each: the axis is across both, as long as the sine of the angle between them.
  for (int i = 0; i < 3; ++i)
    extent[i] += btVector3(ROUNDING, ROUNDING, ROUNDING);
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j) {
      const int i1 = (i + 1) % 3, i2 = (i + 2) % 3;
      const int j1 = (j + 1) % 3, j2 = (j + 2) % 3;
      const btScalar distance = std::abs(way[i2] * rotation[i1][j] - way[i1] * rotation[i2][j]);
      const btScalar reach =
          a[i1] * extent[i2][j] + a[i2] * extent[i1][j] + b[j1] * extent[i][j2] + b[j2] * extent[i][j1];
      if (distance > reach && distance - reach > tolerance * std::hypot(rotation[i1][j], rotation[i2][j])) return false;
    }
  return true;
}

}
