#include "game_plugin/scenario/lifecycle/ReadableFile.h"

#include <filesystem>
#include <fstream>

namespace script {

bool canOpenFile(const std::string& path) {
  std::error_code error; // a path that can't be looked at is no file
  return std::filesystem::is_regular_file(path, error) && std::ifstream(path).is_open();
}

}
