#pragma once
#include "qsf/asset/AssetProxy.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace qsf {

class Project;
class ProjectManager;

/// The assets of a project, which are found by name and id while they are mounted. Owned by its project.
class QSF_API AssetPackage {
public:
  AssetPackage(ProjectManager& manager, Project& project) : mManager(manager), mProject(project) {}
  AssetPackage(const AssetPackage&) = delete;
  AssetPackage& operator=(const AssetPackage&) = delete;

  Project& getProject() const { return mProject; }
  bool isMounted() const { return mIsMounted; }
  /// Reads which files there are, at the first time, and mounts all assets, those that were unmounted included. The
  /// texts of the player's language are read anew; a faulty file of them, and a folder that can't be read, is logged at
  /// severity 4.
  void mount();
  /// Nothing finds the asset any more, until the package is mounted anew. What was made of it stays. An id that isn't
  /// one of its own does nothing.
  void unmountAssetByGlobalAssetId(std::uint64_t globalAssetId);
  bool isUnmounted(StringHash localAssetId) const { return mUnmounted.contains(localAssetId); }
  /// Those that are mounted, by name.
  const std::vector<const BaseAsset*>& getAssets() const { return mMounted; }

private:
  friend class ProjectManager;
  /// Throws LoadError if a folder can't be read.
  void takeUp();

  ProjectManager& mManager;
  Project& mProject;
  bool mIsMounted = false;
  std::vector<std::unique_ptr<BaseAsset>> mAssets;
  std::vector<const BaseAsset*> mMounted;
  std::set<StringHash> mUnmounted;
};

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
  Project(ProjectManager& manager, std::string name, std::string directory)
      : BaseProject(std::move(name)), mDirectory(std::move(directory)), mAssetPackage(manager, *this) {}
  /// Absolute, without a slash at the end.
  const std::string& getAbsoluteDirectory() const { return mDirectory; }
  /// The folder above that of the projects: `<base directory>/data/em5` is the game's own project.
  std::string getBaseDirectory() const;
  AssetPackage& getAssetPackage() { return mAssetPackage; }
  const AssetPackage& getAssetPackage() const { return mAssetPackage; }
  /// The one package that a project has here.
  std::vector<AssetPackage*> getAssetPackageList() { return {&mAssetPackage}; }
  /// Those that are mounted.
  const std::vector<const BaseAsset*>& getAssets() const { return mAssetPackage.getAssets(); }

private:
  std::string mDirectory;
  AssetPackage mAssetPackage;
};

/// The known projects, in the order in which they came, and their mounted assets. Owned by Qsf.
class QSF_API ProjectManager {
public:
  /// Reads `<directory>/project.json` and mounts the assets. Throws LoadError; nothing is mounted then.
  Project& registerSingleProjectFromFileSystem(const std::string& directory);
  /// Reads the project.json of a folder below the base directory, while the game runs, and mounts nothing. A folder
  /// that is known already gives its project. Null if there is no such folder, if the way to it leads out of the base
  /// directory, and, with a line at severity 4, for a faulty file or a name that another folder's project has.
  Project* registerSingleProjectFromFileSystem(const std::string& projectName, const std::string& relativeDirectory,
                                               const std::string& baseDirectory);
  const std::vector<std::unique_ptr<Project>>& getProjects() const { return mProjects; }
  Project* getProjectByName(const std::string& name) const;
  /// Null if no mounted project has it. Of equal names the project mounted last wins.
  const BaseAsset* getAssetById(StringHash localAssetId) const;
  /// Local names of all assets of a type ("map", "prefab"), sorted, each once.
  std::vector<std::string> getAssetNamesByType(const std::string& type) const;

private:
  friend class AssetPackage;
  Project& add(const std::string& folder);

  std::vector<std::unique_ptr<Project>> mProjects;
  std::unordered_map<StringHash, const BaseAsset*> mAssets;
};

}
