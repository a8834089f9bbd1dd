#pragma once
#include "game_plugin/scenario/tick/ScenarioHandler.h"
#include "game_plugin/scenario/world/EntityAccess.h"

#include <span>
#include <vector>

namespace script {

/// The ids of a list argument whose entity exists, in the list's order.
std::vector<std::uint64_t> existingIds(ScenarioHandler& handler, const Argument& list);

/// Appends the candidates to `picked`, the closest to the reference first and of equally close ones the first of the
/// list, each id once. Ends when the number of picked ids, those that were there before included, is exactly the number
/// argument; one with a fraction never is, so everything is picked. Entities 999999 units away and more never are.
void pickClosest(ScenarioHandler& handler, std::span<const std::uint64_t> candidates, const qsf::Entity& reference,
                 const Argument& maximumNumber, std::vector<std::uint64_t>& picked);

}
