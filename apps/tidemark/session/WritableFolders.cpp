#include "apps/tidemark/session/WritableFolders.h"

#include "qsf/base/WritePermission.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <filesystem>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

constexpr const char* ADVICE =
    "scripts write below the working directory only, unless --allow-write DIR names a folder more";

CLI::Validator existingFolder() {
  return CLI::Validator(
      [](std::string& folder) {
        std::error_code fault;
        const fs::path resolved = fs::canonical(folder, fault);
        if (fault || !fs::is_directory(resolved, fault)) return fmt::format("there is no folder '{}'", folder);
        folder = resolved.string();
        return std::string();
      },
      "");
}

}

void addAllowWrite(CLI::App& command, std::vector<std::string>& folders) {
  command
      .add_option("--allow-write", folders,
                  "Let scripts write below this folder, too, not only below the working directory; can be repeated")
      ->transform(existingFolder())
      ->allow_extra_args(false)
      ->type_name("DIR");
}

std::vector<std::string> writableFolders(const std::string& workingDirectory, const std::vector<std::string>& allowed) {
  std::vector<std::string> folders = allowed;
  std::error_code missing;
  const fs::path resolved = fs::canonical(workingDirectory, missing);
  if (!missing && fs::is_directory(resolved, missing)) folders.insert(folders.begin(), resolved.string());
  return folders;
}

void limitHostWrites(const std::vector<std::string>& folders) {
  qsf::UniqueInstance<qsf::WritePermission>()->limitTo(folders, ADVICE);
}

}
