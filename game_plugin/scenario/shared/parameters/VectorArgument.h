#pragma once
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include <glm/glm.hpp>
#include <glm/gtc/quaternion.hpp>

#include <optional>
#include <string>
#include <vector>

namespace script {

/// Order of the angles in all Euler conversions of the catalogue (see qsf::EulerAngles).
inline constexpr int EULER_ORDER = 17;

/// The argument through ScenarioHandler::SplitVecInXYZ; nothing, with that operation's message, if it isn't of three
/// parts.
std::optional<glm::vec3> splitVector(ScenarioHandler& handler, const Argument& argument);
/// The blank-separated parts of a string argument.
std::vector<std::string> splitParts(ScenarioHandler& handler, const Argument& argument);
/// The first three parts as number arguments. Throws std::out_of_range if there are fewer.
glm::vec3 resolveParts(ScenarioHandler& handler, const std::vector<std::string>& parts);

/// The rotation of three angles in degrees, as scripts write them.
glm::quat rotationFromDegrees(const glm::vec3& degrees);
/// Three numbers as a default text stream prints them, separated by blanks.
std::string vectorToText(const glm::vec3& vector);

}
