#pragma once
#include <string>

/// Where tests find what they read. In calls, not in compile definitions: those would make each object depend on the
/// folder of the source tree.
namespace paths {

std::string sourceDirectory();
/// The folder of the base project.
std::string baseProject();
/// The library of fixtures/test_plugin, in the build folder of the running test program.
std::string testPlugin();

}
