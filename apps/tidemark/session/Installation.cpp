#include "apps/tidemark/session/Installation.h"

#include "apps/tidemark/platform/Platform.h"

#include <fmt/format.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

/// The folder that holds bin, lib and share.
fs::path installation() { return fs::path(platform::executablePath()).parent_path().parent_path(); }

}

std::string baseProjectDirectory() {
  const char* told = std::getenv("TIDEMARK_DATA");
  const fs::path data = told && *told ? fs::path(told) : installation() / "share/tidemark/data";
  if (std::error_code ignored; fs::exists(data / "em5/project.json", ignored))
    return fs::absolute(data / "em5").string();
  throw std::runtime_error(fmt::format(
      "the base project is not found: {} has no em5/project.json; set TIDEMARK_DATA to the folder that holds em5",
      data.string()));
}

std::string modulePath() { return (installation() / "lib/tidemark/libtidemark.so").string(); }

}
