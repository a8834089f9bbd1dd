#pragma once
#include "qsf/map/Entity.h"

#include <glm/glm.hpp>

#include <cstdint>

namespace script {

/// Entity of the main map, or null.
qsf::Entity* findEntity(std::uint64_t id);
/// Position of an entity's transform; the origin without one.
glm::vec3 positionOf(const qsf::Entity& entity);
/// Length of the way between two entities, in three dimensions, in the game's units.
float distanceBetween(const qsf::Entity& a, const qsf::Entity& b);

}
