#pragma once
#include "em5/game/Player.h"

#include <cstdint>

namespace script {

/// Hands the execution of a scripted command, by the hash of its name, to the machine of that player. False if there is
/// no message handler for it.
bool sendCommandToClient(const em5::Player& player, std::uint32_t commandHash);

}
