#pragma once
#include "qsf/Export.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// Angle in radians, -pi to pi, by which something has to turn about the y axis to the left so that its negative z axis
/// points at the target, seen from above. 0 if the target is straight above or below it.
QSF_API float getAngleToFace(const glm::vec3& position, const glm::quat& rotation, const glm::vec3& target);

/// The rotation after a turn about the world's y axis.
QSF_API glm::quat turnAboutY(const glm::quat& rotation, float angle);

}
