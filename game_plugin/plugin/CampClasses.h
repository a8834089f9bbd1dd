#pragma once
#include <camp/class.hpp>

#include <vector>

namespace script {

/// Declares the module's reflected classes, each once in a process, in the order that the host is told of them. Throws
/// what CAMP throws.
std::vector<const camp::Class*> declareCampClasses();

}
