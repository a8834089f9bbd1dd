#pragma once
#include "qsf/game/CommandContext.h"

#include <cstdint>

namespace em5 {

/// A command's context in the game. Lives for the call that carries it.
struct QSF_API CommandContext : qsf::game::CommandContext {
  /// The unit minds smoke; false for orders that are given regardless of it.
  bool mConsiderSmoke = true;

  /// What became of the question whether the unit may obey.
  enum Permission : std::uint32_t { PERMISSION_OPEN = 0, PERMISSION_GRANTED = 1, PERMISSION_REFUSED = 2 };
  Permission mPermission = PERMISSION_OPEN;
};

}
