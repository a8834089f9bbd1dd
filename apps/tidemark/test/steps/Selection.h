#pragma once
#include <cstdint>
#include <set>

namespace tidemark::test {

/// What is selected: in the game by the player, in the editor by its user. Empty between games.
std::set<std::uint64_t> getSelection();
/// In the game this sends EM5_CHANGE_SELECTION once, also if the selection was that one before. Throws NotThere between
/// games.
void setSelection(const std::set<std::uint64_t>& ids);

}
