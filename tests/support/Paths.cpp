#include "tests/support/Paths.h"

#include <filesystem>

namespace paths {

std::string sourceDirectory() { return SOURCE_DIRECTORY; }

std::string baseProject() { return sourceDirectory() + "/data/em5"; }

std::string testPlugin() {
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
  return (program.parent_path().parent_path() / "lib/tidemark/libtest_plugin.so").string();
}

}
