#include "apps/tidemark/test/Discovery.h"

#include "apps/tidemark/test/directives/Words.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;

bool holdsDirective(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string line;
  while (std::getline(file, line))
    if (directiveName(line)) return true;
  return false;
}

std::vector<std::string> searchFolder(const fs::path& folder) {
  std::vector<std::string> found;
  const auto options = fs::directory_options::skip_permission_denied;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, options))
    if (entry.path().extension() == ".script" && entry.is_regular_file() && holdsDirective(entry.path()))
      found.push_back(entry.path().lexically_normal().string());
  std::sort(found.begin(), found.end());
  return found;
}

}

std::vector<std::string> findTests(const std::vector<std::string>& paths) {
  std::vector<std::string> tests;
  std::set<std::string> known;
  const auto add = [&](const std::string& file) {
    if (known.insert(fs::weakly_canonical(file).string()).second) tests.push_back(file);
  };
  for (const std::string& path : paths) {
    if (!fs::exists(path)) throw std::runtime_error(fmt::format("{}: there is no such file or folder", path));
    if (!fs::is_directory(path))
      add(path);
    else
      for (const std::string& file : searchFolder(path))
        add(file);
  }
  return tests;
}

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) throw std::runtime_error(fmt::format("{}: can't be read", path));
  return text.str();
}

}
