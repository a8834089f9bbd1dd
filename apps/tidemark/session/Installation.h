#pragma once
#include <string>

namespace tidemark {

/// The folder of the base project `em5`: below TIDEMARK_DATA if that is set, else below `share/tidemark/data` beside
/// the program's folder, else below the source tree that the program was built from. Throws std::runtime_error if none
/// has it.
std::string baseProjectDirectory();

/// The module's library, which stands beside the program or in `lib/tidemark` beside its folder.
std::string modulePath();

}
