#pragma once
#include "qsf/Export.h"

#include <memory>
#include <string>
#include <vector>

namespace qsf {
class Project;
}

namespace em5 {

/// Whether a modification takes part. Only one that is both mounted and enabled has its scripts run.
struct QSF_API ModState {
  bool mounted = true;
  bool enabled = true;
};

/// A modification: a project that is not the base project. Owned by the mod system.
class QSF_API Mod {
public:
  Mod(std::string name, std::string directory, ModState state, qsf::Project* project)
      : mName(std::move(name)), mDirectory(std::move(directory)), mState(state), mProject(project) {}

  const std::string& getName() const { return mName; }
  const std::string& getDirectory() const { return mDirectory; }
  bool isMounted() const { return mState.mounted; }
  bool isEnabled() const { return mState.enabled; }
  /// Null while the modification isn't mounted.
  qsf::Project* getProject() const { return mProject; }

private:
  std::string mName;
  std::string mDirectory;
  ModState mState;
  qsf::Project* mProject;
};

/// The known modifications, in the order in which the program named them. Owned by the plug-in.
class QSF_API ModSystem {
public:
  const std::vector<std::unique_ptr<Mod>>& getMods() const { return mMods; }
  Mod* getModByName(const std::string& name) const;
  /// Mounts the project folder (or only notes it, by its state). Throws qsf::LoadError; nothing is changed then.
  Mod& addMod(const std::string& directory, ModState state);

private:
  std::vector<std::unique_ptr<Mod>> mMods;
};

}
