#pragma once
#include <filesystem>

namespace script {

/// The folder of the library that this code was loaded from; empty, which is the working directory, if the system
/// doesn't tell.
std::filesystem::path moduleFolder();

}
