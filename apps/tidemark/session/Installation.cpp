#include "apps/tidemark/session/Installation.h"

#include "apps/tidemark/platform/Platform.h"

#include <fmt/format.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

fs::path programFolder() { return fs::path(platform::executablePath()).parent_path(); }

}

std::string baseProjectDirectory() {
  std::vector<fs::path> candidates;
  if (const char* data = std::getenv("TIDEMARK_DATA"); data && *data)
    candidates = {fs::path(data)};
  else
    candidates = {programFolder().parent_path() / "share/tidemark/data", fs::path(TIDEMARK_DATA_DIRECTORY)};
  for (const fs::path& candidate : candidates)
    if (std::error_code ignored; fs::exists(candidate / "em5/project.json", ignored))
      return fs::absolute(candidate / "em5").string();
  throw std::runtime_error(fmt::format(
      "the base project is not found: {} has no em5/project.json; set TIDEMARK_DATA to the folder that holds em5",
      candidates.back().string()));
}

std::string modulePath() {
  const fs::path beside = programFolder() / "libtidemark.so";
  const fs::path installed = programFolder().parent_path() / "lib/tidemark/libtidemark.so";
  std::error_code ignored;
  return fs::exists(beside, ignored) || !fs::exists(installed, ignored) ? beside.string() : installed.string();
}

}
