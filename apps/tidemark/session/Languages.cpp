#include "apps/tidemark/session/Languages.h"

#include "qsf/asset/Project.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace tidemark {

namespace {

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

}

bool isLanguageCode(std::string_view text) {
  const std::size_t end = std::min(text.find_first_of("-_"), text.size());
  const std::string_view language = text.substr(0, end);
  if (language.size() < 2 || language.size() > 3 || !std::all_of(language.begin(), language.end(), isLetter))
    return false;
  if (end == text.size()) return true;
  const std::string_view region = text.substr(end + 1);
  return region.size() >= 2 && region.size() <= 4 && std::all_of(region.begin(), region.end(), isLetter);
}

std::vector<std::string> findLanguages(const qsf::ProjectManager& projects) {
  namespace fs = std::filesystem;
  std::set<std::string> languages;
  for (const auto& project : projects.getProjects()) {
    std::error_code ignored;
    for (const fs::directory_entry& entry :
         fs::directory_iterator(fs::path(project->getAbsoluteDirectory()) / "text", ignored))
      if (entry.is_directory(ignored)) languages.insert(entry.path().filename().string());
  }
  return {languages.begin(), languages.end()};
}

}
