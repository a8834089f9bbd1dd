#pragma once
#include "qsf/map/Entity.h"

#include <cstdint>
#include <span>
#include <vector>

namespace script {

/// The main map can say who touches whom; without that, sensor conditions leave every list as it is.
bool canSense();
/// Entities that touch the collision boxes of the areas, area by area. An area without a box senses nothing, an entity
/// that touches two of them comes twice, and an area whose kind meets itself finds itself. The result holds until the
/// next call.
const std::vector<qsf::Entity*>& findEntitiesInAreas(std::span<const std::uint64_t> areas);

}
