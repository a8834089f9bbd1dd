#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// Conversions between Euler angles (radians) and quaternions. The order value follows Shoemake's scheme: bit 0 the
/// frame (1: rotating axes), bit 1 repetition, bit 2 parity, from bit 3 the inner axis. The game uses order 17:
/// rotating axes, inner axis Z, which makes a rotation about Y, then X, then Z; the vector is always (x angle, y angle,
/// z angle).
class QSF_API EulerAngles {
public:
  static glm::quat eulerToQuaternion(const glm::vec3& angles, int order);
  static glm::vec3 quaternionToEuler(const glm::quat& rotation, int order);
};

}
