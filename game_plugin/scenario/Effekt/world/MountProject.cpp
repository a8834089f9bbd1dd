#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/asset/Project.h"

namespace script {

struct MountProjectEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The variable becomes 0 whether the project was found or not.",
      "Plug-ins and scripts of the project are not loaded.",
  };

  Argument project;
  Argument variable;
};

static void read(MountProjectEffect& effect, ParameterReader& in) {
  effect.project = in.text(1, "em20", "ProjectName", "Name of the project's folder, beside that of the base project");
  effect.variable = in.variableOut(2, "my_var_1", "Success Indicator Variable", "Becomes 0 in every case");
}

static qsf::Project* registerProject(const std::string& name) {
  qsf::ProjectManager& projects = qsf::Qsf::instance()->getProjectManager();
  const qsf::Project* game = projects.getProjectByName("em5");
  if (!game) return nullptr;
  return projects.registerSingleProjectFromFileSystem(name, "data/" + name, game->getBaseDirectory());
}

static void run(const MountProjectEffect& effect, ScenarioHandler& handler) {
  const std::string name = handler.ResolveString(effect.project);
  qsf::Project* project = registerProject(name);
  logInfo((project ? "project was  found " : "project was not found ") + name);
  handler.SetFloatVariable(effect.variable, 0);
  if (!project) return;
  for (qsf::AssetPackage* package : project->getAssetPackageList())
    package->mount();
}

EFFECT(MountProject, "Units", "Mounts a project that lies beside the base project. The variable is to tell of success")

}
