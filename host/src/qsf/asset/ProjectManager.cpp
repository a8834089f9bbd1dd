#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/JsonFile.h"
#include "qsf/base/StringHashManager.h"

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

/// A project of a hundred thousand files is meant; a link that leads back into the folder is not followed.
std::vector<fs::path> listFiles(const fs::path& directory) {
  std::vector<fs::path> files;
  try {
    for (auto entry = fs::recursive_directory_iterator(directory); entry != fs::recursive_directory_iterator();
         ++entry) {
      const bool hidden = entry->path().filename().native().starts_with('.');
      if (hidden && entry->is_directory())
        entry.disable_recursion_pending();
      else if (!hidden && entry->is_regular_file())
        files.push_back(entry->path().lexically_relative(directory));
    }
  } catch (const fs::filesystem_error& fault) {
    throw LoadError(directory.string(), "", std::string("the folder cannot be read: ") + fault.code().message());
  }
  // A name's data stand in its .json file, whatever lies beside it; among other endings the alphabet decides.
  std::sort(files.begin(), files.end(), [](const fs::path& left, const fs::path& right) {
    return std::tuple(left.parent_path(), left.stem(), left.extension() != ".json", left.extension()) <
           std::tuple(right.parent_path(), right.stem(), right.extension() != ".json", right.extension());
  });
  return files;
}

std::vector<std::unique_ptr<BaseAsset>> listAssets(const std::string& project, const fs::path& directory) {
  std::vector<std::unique_ptr<BaseAsset>> assets;
  std::set<std::string> names;
  for (const fs::path& file : listFiles(directory)) {
    if (std::distance(file.begin(), file.end()) < 3) // <type>/<category>/<name>
      continue;
    std::string name = project + "/" + (file.parent_path() / file.stem()).generic_string();
    if (names.insert(name).second)
      assets.push_back(std::make_unique<BaseAsset>(std::move(name), (directory / file).string()));
  }
  return assets;
}

}

Project& ProjectManager::registerSingleProjectFromFileSystem(const std::string& directory) {
  std::error_code error;
  const fs::path folder = fs::canonical(directory, error);
  if (error) throw LoadError(directory, "", "there is no such project folder");
  if (!fs::is_directory(folder, error))
    throw LoadError(directory, "", "a project is a folder with a project.json, and this is none");
  const std::string file = (folder / "project.json").string();
  if (!fs::exists(file, error))
    throw LoadError(file, "", "there is no such file; a project's folder has one, with at least {\"name\": \"...\"}");
  const std::string name = readProjectName(file);
  if (const Project* other = getProjectByName(name))
    throw LoadError(file, "/name",
                    "a project named \"" + name + "\" is mounted already, from " + other->getAbsoluteDirectory());
  auto project = std::make_unique<Project>(name, folder.string());
  project->mAssets = listAssets(name, folder);
  for (const auto& asset : project->mAssets) {
    mAssets[asset->getId()] = asset.get();
    if (const Qsf* host = Qsf::instance())
      host->getStringHashManager().registerStringHash(asset->getId(), asset->getName());
  }
  mProjects.push_back(std::move(project));
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
    for (const auto& asset : project->mAssets)
      if (asset->getType() == type) names.insert(asset->getName());
  return {names.begin(), names.end()};
}

}
