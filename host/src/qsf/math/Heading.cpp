#include "qsf/math/Heading.h"

#include <glm/gtc/constants.hpp>

#include <cmath>

namespace qsf {

namespace {

constexpr float SMALLEST_LENGTH = 1e-6f;

/// 0 for a direction without an extent in the ground plane.
float headingOf(const glm::vec3& direction) {
  if (!(std::hypot(direction.x, direction.z) > SMALLEST_LENGTH)) return 0.0f;
  return std::atan2(-direction.x, -direction.z);
}

}

float getAngleToFace(const glm::vec3& position, const glm::quat& rotation, const glm::vec3& target) {
  const glm::vec3 way = target - position;
  if (!(std::hypot(way.x, way.z) > SMALLEST_LENGTH)) return 0.0f;
  return std::remainder(headingOf(way) - headingOf(rotation * glm::vec3(0, 0, -1)), glm::two_pi<float>());
}

glm::quat turnAboutY(const glm::quat& rotation, float angle) {
  return glm::normalize(glm::angleAxis(angle, glm::vec3(0, 1, 0)) * rotation);
}

}
