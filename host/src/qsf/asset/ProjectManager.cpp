#include "qsf/asset/Project.h"
#include "qsf/base/JsonFile.h"
#include "qsf/log/LogSystem.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace qsf {

namespace fs = std::filesystem;

namespace {

std::string readProjectName(const std::string& file) {
  const Json document = readJsonFile(file);
  const JsonPlace root(document, file);
  root.expectObject();
  const JsonPlace name = root.member("name");
  const std::string text = name.asText();
  if (text.empty()) name.fail("the project's name is empty");
  if (text.find_first_of("/\\") != std::string::npos || text == "." || text == "..")
    name.fail("the project's name \"" + text + "\" is the first part of its assets' names and holds no slash");
  if (root.has("description")) root.member("description").asText();
  return text;
}

}

Project& ProjectManager::registerSingleProjectFromFileSystem(const std::string& directory) {
  std::error_code error;
  const fs::path folder = fs::canonical(directory, error);
  if (error) throw LoadError(directory, "", "there is no such project folder");
  if (!fs::is_directory(folder, error))
    throw LoadError(directory, "", "a project is a folder with a project.json, and this is none");
  Project& project = add(folder.string());
  try {
    project.getAssetPackage().takeUp();
  } catch (...) {
    mProjects.pop_back();
    throw;
  }
  return project;
}

Project* ProjectManager::registerSingleProjectFromFileSystem(const std::string& projectName,
                                                             const std::string& relativeDirectory,
                                                             const std::string& baseDirectory) {
  const fs::path relative(relativeDirectory);
  std::error_code error;
  const fs::path folder = fs::canonical(fs::path(baseDirectory) / relative, error);
  if (error || relative.is_absolute() || projectName.empty() || std::ranges::count(relative, fs::path("..")) > 0 ||
      !fs::exists(folder / "project.json", error))
    return nullptr;
  const auto known = std::ranges::find(mProjects, folder.string(), &Project::getAbsoluteDirectory);
  if (known != mProjects.end()) return known->get();
  try {
    return &add(folder.string());
  } catch (const LoadError& fault) {
    logMessage(LogSystem::ERROR, fault.what());
    return nullptr;
  }
}

Project& ProjectManager::add(const std::string& folder) {
  const std::string file = (fs::path(folder) / "project.json").string();
  std::error_code error;
  if (!fs::exists(file, error))
    throw LoadError(file, "", "there is no such file; a project's folder has one, with at least {\"name\": \"...\"}");
  const std::string name = readProjectName(file);
  if (const Project* other = getProjectByName(name))
    throw LoadError(file, "/name",
                    "a project named \"" + name + "\" is mounted already, from " + other->getAbsoluteDirectory());
  mProjects.push_back(std::make_unique<Project>(*this, name, folder));
  return *mProjects.back();
}

Project* ProjectManager::getProjectByName(const std::string& name) const {
  for (const auto& project : mProjects)
    if (project->getName() == name) return project.get();
  return nullptr;
}

const BaseAsset* ProjectManager::getAssetById(StringHash localAssetId) const {
  const auto found = mAssets.find(localAssetId);
  return found == mAssets.end() ? nullptr : found->second;
}

std::vector<std::string> ProjectManager::getAssetNamesByType(const std::string& type) const {
  std::set<std::string> names;
  for (const auto& project : mProjects)
    for (const BaseAsset* asset : project->getAssets())
      if (asset->getType() == type) names.insert(asset->getName());
  return {names.begin(), names.end()};
}

}
