#pragma once
#include "qsf/asset/AssetProxy.h"

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace qsf {

/// What every project has: a name.
class QSF_API BaseProject {
public:
  explicit BaseProject(std::string name) : mName(std::move(name)) {}
  virtual ~BaseProject() = default;
  const std::string& getName() const { return mName; }

private:
  std::string mName;
};

/// A folder with a project.json. Its assets are the files below `<type>/<category>/`, found when it is mounted.
class QSF_API Project : public BaseProject {
public:
  Project(std::string name, std::string directory) : BaseProject(std::move(name)), mDirectory(std::move(directory)) {}
  /// Absolute, without a slash at the end.
  const std::string& getAbsoluteDirectory() const { return mDirectory; }
  const std::vector<std::unique_ptr<BaseAsset>>& getAssets() const { return mAssets; }

private:
  friend class ProjectManager;
  std::string mDirectory;
  std::vector<std::unique_ptr<BaseAsset>> mAssets;
};

/// The mounted projects, in the order of mounting. Owned by Qsf.
class QSF_API ProjectManager {
public:
  /// Reads `<directory>/project.json` and lists the assets. Throws LoadError; nothing is mounted then.
  Project& registerSingleProjectFromFileSystem(const std::string& directory);
  const std::vector<std::unique_ptr<Project>>& getProjects() const { return mProjects; }
  Project* getProjectByName(const std::string& name) const;
  /// Null if no mounted project has it. Of equal names the project mounted last wins.
  const BaseAsset* getAssetById(StringHash localAssetId) const;
  /// Local names of all assets of a type ("map", "prefab"), sorted, each once.
  std::vector<std::string> getAssetNamesByType(const std::string& type) const;

private:
  std::vector<std::unique_ptr<Project>> mProjects;
  std::unordered_map<StringHash, const BaseAsset*> mAssets;
};

}
