#pragma once
#include <string>

namespace script {

/// True if the path names a plain file that can be opened for reading. Directories and devices are refused: the latter
/// may never end.
bool canOpenFile(const std::string& path);

}
