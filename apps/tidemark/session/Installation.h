#pragma once
#include <string>

/// Where the program finds what belongs to it: from its own place, so that an installation, or a build folder, may be
/// moved.
namespace tidemark {

/// The folder of the base project `em5`: below TIDEMARK_DATA if that is set, else in `share/tidemark/data` beside the
/// program's folder. Throws std::runtime_error if it isn't there.
std::string baseProjectDirectory();

/// The module's library, in `lib/tidemark` beside the program's folder; it may be missing.
std::string modulePath();

}
