#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// Conversions between Euler angles (radians) and quaternions. The order value follows Shoemake's scheme: bit 0 the
/// frame (1: rotating axes), bit 1 repetition, bit 2 parity, from bit 3 the inner axis. The vector holds the angles in
/// the order of the turns. The game uses order 17: first about Y (the heading), then about the turned X, then about the
/// turned Z; so the vector is (heading about Y, about X, about Z).
class QSF_API EulerAngles {
public:
  static glm::quat eulerToQuaternion(const glm::vec3& angles, int order);
  static glm::vec3 quaternionToEuler(const glm::quat& rotation, int order);
};

}
