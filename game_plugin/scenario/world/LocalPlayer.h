#pragma once
#include <cstdint>
#include <vector>

namespace script {

/// A game with a player manager runs.
bool hasLocalPlayer();
/// Index of this machine's player; 0 without a game.
unsigned int getLocalPlayerIndex();
/// A game with a player manager runs, and the local player isn't the first: this machine is a client.
bool isLocalPlayerClient();
/// Hands a hit of a GUI-synchronised trigger to the network. False if there is no message handler for it.
bool sendTriggerToHost(std::uint32_t triggerHash, const std::vector<std::uint64_t>& callers, std::uint64_t target);

}
