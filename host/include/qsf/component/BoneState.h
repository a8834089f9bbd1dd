#pragma once
#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

namespace qsf {

/// How a bone stands, relative to its parent.
struct BoneState {
  glm::vec3 position;
  glm::quat rotation;
  glm::vec3 scale;
  bool manual;    ///< moved by hand; animations leave it
  float turnedBy; ///< degrees between its rest pose and now, 0 to 180
};

}
