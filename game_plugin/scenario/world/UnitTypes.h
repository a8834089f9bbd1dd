#pragma once
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// Whether the entity is of a unit type such as "PlayerVehicles". A missing entity is of none; an unknown type is
/// logged.
bool CheckUnitType(std::uint64_t entityId, const std::string& unitType);

/// Ids of the entities of a unit type within range of the centre entity, or on the whole map if there is no such
/// entity.
std::vector<std::uint64_t> findEntitiesOfUnitType(const std::string& unitType, std::uint64_t centerId, float range);

/// The texts that name a unit type.
std::span<const std::string_view> unitTypeWords();

}
