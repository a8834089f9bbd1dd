#include "em5/plugin/ModSystem.h"

#include "em5/base/JsonMembers.h"
#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"
#include "qsf/base/LoadError.h"

#include <filesystem>

namespace em5 {

namespace {

/// Name of a project that is known but not mounted: its assets stay unread.
std::string readProjectName(const std::string& directory) {
  const std::string file = directory + "/project.json";
  const qsf::Json json = qsf::readJsonFile(file);
  const qsf::JsonPlace root(json, file);
  root.expectObject();
  return requiredText(root, "name");
}

}

Mod* ModSystem::getModByName(const std::string& name) const {
  for (const auto& mod : mMods)
    if (mod->getName() == name) return mod.get();
  return nullptr;
}

Mod& ModSystem::addMod(const std::string& directory, ModState state) {
  const std::string absolute = std::filesystem::absolute(directory).lexically_normal().string();
  qsf::Project* project = nullptr;
  std::string name;
  if (state.mounted) {
    project = &qsf::Qsf::instance()->getProjectManager().registerSingleProjectFromFileSystem(directory);
    name = project->getName();
  } else {
    name = readProjectName(absolute);
    if (getModByName(name))
      throw qsf::LoadError(absolute + "/project.json", "/name", "there is a modification \"" + name + "\" already");
  }
  mMods.push_back(std::make_unique<Mod>(name, project ? project->getAbsoluteDirectory() : absolute, state, project));
  return *mMods.back();
}

}
