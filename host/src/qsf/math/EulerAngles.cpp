#include "qsf/math/EulerAngles.h"

#include <cmath>

namespace qsf {

namespace {

/// Below this cosine (or sine) of the middle angle the outer two angles turn about the same axis.
constexpr double POLE = 16.0 * 1.1920929e-7;

/// The three axes in the order of a rotation about fixed axes. A rotation about rotating axes is the same with the
/// order turned round, so the frame bit only tells which end of the vector the first angle stands at.
struct Axes {
  int first;
  int middle;
  int last;    ///< equals `first` for a repeating order
  int other;   ///< the axis that is neither `first` nor `middle`
  int firstAt; ///< where the vector holds the angle of the first axis; the middle one is always at 1
  int lastAt;
  bool repeats;
  bool odd;

  explicit Axes(int order) {
    const auto bits = static_cast<unsigned int>(order);
    repeats = (bits & 2u) != 0;
    odd = (bits & 4u) != 0;
    const unsigned int inner = (bits >> 3u) & 3u;
    first = inner == 3u ? 0 : static_cast<int>(inner);
    middle = (first + (odd ? 2 : 1)) % 3;
    other = (first + (odd ? 1 : 2)) % 3;
    last = repeats ? first : other;
    firstAt = (bits & 1u) != 0 ? 2 : 0;
    lastAt = 2 - firstAt;
  }
};

/// Half-angle quaternion about a coordinate axis, in double precision.
glm::dquat aboutAxis(int axis, double angle) {
  glm::dquat rotation(std::cos(angle * 0.5), 0.0, 0.0, 0.0);
  glm::dvec3 part(0.0);
  part[axis] = std::sin(angle * 0.5);
  rotation.x = part.x;
  rotation.y = part.y;
  rotation.z = part.z;
  return rotation;
}

}

glm::quat EulerAngles::eulerToQuaternion(const glm::vec3& angles, int order) {
  const Axes axes(order);
  const glm::dquat rotation = aboutAxis(axes.last, angles[axes.lastAt]) * aboutAxis(axes.middle, angles[1]) *
                              aboutAxis(axes.first, angles[axes.firstAt]);
  return glm::quat(static_cast<float>(rotation.w), static_cast<float>(rotation.x), static_cast<float>(rotation.y),
                   static_cast<float>(rotation.z));
}

glm::vec3 EulerAngles::quaternionToEuler(const glm::quat& rotation, int order) {
  const glm::dquat exact(rotation.w, rotation.x, rotation.y, rotation.z);
  const double length = glm::length(exact);
  if (!std::isfinite(length) || length <= 0.0) return glm::vec3(0.0f);
  const glm::dmat3 matrix = glm::mat3_cast(exact / length);
  const auto at = [&matrix](int row, int column) { return matrix[column][row]; };

  const Axes axes(order);
  const int i = axes.first;
  const int j = axes.middle;
  const int k = axes.other;
  double firstAngle = 0.0;
  double middleAngle = 0.0;
  double lastAngle = 0.0;
  if (axes.repeats) {
    const double sine = std::hypot(at(i, j), at(i, k));
    middleAngle = std::atan2(sine, at(i, i));
    if (sine > POLE) {
      firstAngle = std::atan2(at(i, j), at(i, k));
      lastAngle = std::atan2(at(j, i), -at(k, i));
    } else {
      firstAngle = std::atan2(-at(j, k), at(j, j));
    }
  } else {
    const double cosine = std::hypot(at(i, i), at(j, i));
    middleAngle = std::atan2(-at(k, i), cosine);
    if (cosine > POLE) {
      firstAngle = std::atan2(at(k, j), at(k, k));
      lastAngle = std::atan2(at(j, i), at(i, i));
    } else {
      firstAngle = std::atan2(-at(j, k), at(j, j));
    }
  }

  const double sign = axes.odd ? -1.0 : 1.0;
  glm::vec3 angles(0.0f);
  angles[axes.firstAt] = static_cast<float>(sign * firstAngle);
  angles[1] = static_cast<float>(sign * middleAngle);
  angles[axes.lastAt] = static_cast<float>(sign * lastAngle);
  return angles;
}

}
