#pragma once
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

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

enum class ArithmeticOperator : unsigned char { ADD = 0, SUBTRACT = 1, MULTIPLY = 2, DIVIDE = 3 };
/// `-`, `*`, `:`; anything else, `/` included, adds.
ArithmeticOperator ToArithmeticOperator(std::string_view text);

// The words of each table, in its order: what a parameter accepts that is converted by it.

std::span<const std::string_view> barTypeWords();
std::span<const std::string_view> planModeWords();
std::span<const std::string_view> movementModeWords();
std::span<const std::string_view> statusIconWords();
std::span<const std::string_view> minimapIconWords();
std::span<const std::string_view> injuryWords();
std::span<const std::string_view> gangsterLogicWords();
std::span<const std::string_view> arithmeticWords();

}
