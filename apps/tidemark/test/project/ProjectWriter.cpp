#include "apps/tidemark/test/project/ProjectWriter.h"

#include "apps/tidemark/text/Encoding.h"

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace tidemark::test {

namespace {

namespace fs = std::filesystem;
// The order of scripts in the file is the order in which they are loaded.
using Json = nlohmann::ordered_json;

constexpr const char* SCRIPT_FOLDER = "x64/tidemark";
constexpr const char* CONFIGURATION = "x64/tidemark/MapScript.json";

void writeFile(const fs::path& path, const std::string& content) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  if (!file.flush()) throw std::runtime_error(fmt::format("{}: can't be written", path.string()));
}

std::string encode(const TestPlan& plan, const ScriptSection& script) {
  std::string result = script.text;
  try {
    if (plan.encoding == TestPlan::Encoding::CODE_PAGE_1252) result = convertToCodePage1252(result);
  } catch (const std::invalid_argument& fault) {
    throw DirectiveError(fmt::format("@encoding cp1252: {}: {}", script.path, fault.what()));
  }
  return plan.lineEnd == TestPlan::LineEnd::CARRIAGE_RETURN ? convertToCarriageReturns(result) : result;
}

bool bringsFile(const ProjectPlan& project, const std::string& path) {
  return std::any_of(project.files.begin(), project.files.end(),
                     [&](const FileSection& file) { return fs::path(file.path).lexically_normal() == path; });
}

Json describeScripts(const TestPlan& plan, const ProjectPlan& project) {
  Json scripts = Json::object();
  for (const ScriptSection& script : project.scripts) {
    if (script.mode.empty()) continue;
    const bool isMain = &script == plan.projects.front().scripts.data();
    scripts[script.key] = {{"Path", script.path},
                           {"Mode", script.mode},
                           {"Maps", isMain ? plan.mainMaps : std::vector<std::string>{"All"}}};
  }
  return scripts;
}

// Names of maps may hold bytes that are no UTF-8; they go into the file as they are.
std::string dump(const Json& json) { return json.dump(2, ' ', false, Json::error_handler_t::ignore) + "\n"; }

// Names that begin with a dot are no part of a project.
void copyFolder(const fs::path& from, const fs::path& to) {
  fs::create_directories(to);
  const auto options = fs::directory_options::follow_directory_symlink;
  for (auto entry = fs::recursive_directory_iterator(from, options); entry != fs::recursive_directory_iterator();
       ++entry) {
    const fs::path target = to / entry->path().lexically_relative(from);
    if (entry->path().filename().string().starts_with('.'))
      entry.disable_recursion_pending();
    else if (entry->is_directory())
      fs::create_directories(target);
    else if (entry->is_regular_file())
      fs::copy_file(entry->path(), target);
  }
}

void writeProject(const TestPlan& plan, const ProjectPlan& project, const fs::path& folder) {
  if (!project.original.empty()) copyFolder(project.original, folder);
  for (const ScriptSection& script : project.scripts)
    writeFile(folder / SCRIPT_FOLDER / script.path, encode(plan, script));
  const Json scripts = describeScripts(plan, project);
  if (!scripts.empty() && !bringsFile(project, CONFIGURATION))
    writeFile(folder / CONFIGURATION, dump({{"MapScripts", scripts}}));
  if (project.original.empty() && !bringsFile(project, "project.json"))
    writeFile(folder / "project.json", dump({{"name", project.name}}));
  for (const FileSection& file : project.files)
    writeFile(folder / file.path, file.text);
}

}

std::string projectDirectory(const ProjectPlan& project, const std::string& folder) {
  return project.directory.empty() ? (fs::path(folder) / project.name).string() : project.directory;
}

void writeProjects(const TestPlan& plan, const std::string& folder) {
  for (const ProjectPlan& project : plan.projects)
    if (project.directory.empty()) writeProject(plan, project, projectDirectory(project, folder));
}

}
