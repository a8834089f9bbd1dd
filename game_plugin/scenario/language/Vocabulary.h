#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace script {

// Scripts name game values by text. The comparisons are exact and case-sensitive; an unknown text gives the fallback,
// without a message unless told otherwise.

/// Status bar type number; 0 for an unknown text, which can't be told from the first row.
int ToBarType(std::string_view text);
/// Action plan insertion number; fallback 0.
int ToPlanMode(std::string_view text);
/// Movement mode number; fallback 0. Never 7.
int ToMovementMode(std::string_view text);
/// Status overlay icon number; nothing for an unknown text. Never 13.
std::optional<int> ToStatusIcon(std::string_view text);
/// Minimap icon type; fallback 0.
int ToMinimapIcon(std::string_view text);
/// Id of the injury of that name; nothing for an unknown text.
std::optional<std::uint32_t> ToInjury(std::string_view text);
/// The same text if it names a gangster logic that scripts may use, otherwise the empty text.
std::string ToGangsterLogic(std::string_view text);

enum class ArithmeticOperator { Add = 0, Subtract = 1, Multiply = 2, Divide = 3 };
/// `-`, `*`, `:`; anything else, `/` included, adds.
ArithmeticOperator ToArithmeticOperator(std::string_view text);

/// Whether the entity is of a unit type such as "PlayerVehicles". A missing entity is of none; an unknown type is
/// logged.
bool CheckUnitType(std::uint64_t entityId, const std::string& unitType);

/// Ids of the entities of a unit type within range of the centre entity, or on the whole map if there is no such
/// entity.
std::vector<std::uint64_t> findEntitiesOfUnitType(const std::string& unitType, std::uint64_t centerId, float range);

}
