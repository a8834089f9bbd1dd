#include "game_plugin/scenario/shared/parameters/VectorArgument.h"

#include "game_plugin/scenario/language/TextConversion.h"

#include "qsf/math/EulerAngles.h"

#include <stdexcept>

namespace script {

namespace {

constexpr float RADIANS_PER_DEGREE = 0.017453292f;

const std::string& partAt(const std::vector<std::string>& parts, std::size_t place) {
  if (place >= parts.size()) throw std::out_of_range("invalid vector<T> subscript");
  return parts[place];
}

}

std::optional<glm::vec3> splitVector(ScenarioHandler& handler, const Argument& argument) {
  glm::vec3 vector(0);
  if (!handler.SplitVecInXYZ(argument, vector.x, vector.y, vector.z)) return std::nullopt;
  return vector;
}

std::vector<std::string> splitParts(ScenarioHandler& handler, const Argument& argument) {
  return splitAtBlanks(handler.ResolveString(argument));
}

glm::vec3 resolveParts(ScenarioHandler& handler, const std::vector<std::string>& parts) {
  glm::vec3 vector(0);
  vector.x = handler.ResolveFloat(partAt(parts, 0));
  vector.y = handler.ResolveFloat(partAt(parts, 1));
  vector.z = handler.ResolveFloat(partAt(parts, 2));
  return vector;
}

glm::quat rotationFromDegrees(const glm::vec3& degrees) {
  return qsf::EulerAngles::eulerToQuaternion(degrees * RADIANS_PER_DEGREE, EULER_ORDER);
}

std::string vectorToText(const glm::vec3& vector) {
  const glm::vec3 plain = vector + 0.0f; // minus zero, which conversions of angles leave behind, is just zero
  return floatToText(plain.x) + " " + floatToText(plain.y) + " " + floatToText(plain.z);
}

}
