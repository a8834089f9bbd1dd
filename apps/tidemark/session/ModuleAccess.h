#pragma once
#include "game_plugin/tooling/Tooling.h"

namespace tidemark {

/// What the loaded module shows to tools. Valid until the host session ends. Throws std::runtime_error if the module
/// isn't loaded or doesn't offer it.
script::tooling::Tooling& findTooling();

}
