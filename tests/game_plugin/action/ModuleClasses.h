#pragma once
#include "game_plugin/action/SetCampPropertyAction.h"
#include "game_plugin/plugin/CampClasses.h"
#include "qsf/reflection/ClassRegistry.h"

/// Makes the module's classes known to a host without the plug-in, as long as it lives.
class ModuleClasses {
public:
  ModuleClasses() : mClasses(script::declareCampClasses()) {
    for (const camp::Class* campClass : mClasses)
      qsf::ClassRegistry::addClass(*campClass);
    qsf::ClassRegistry::addOtherName(camp::classByType<script::SetCampPropertyAction>(),
                                     script::SetCampPropertyAction::ACTION_NAME);
  }
  ~ModuleClasses() {
    for (const camp::Class* campClass : mClasses)
      qsf::ClassRegistry::removeClass(*campClass);
  }
  ModuleClasses(const ModuleClasses&) = delete;
  ModuleClasses& operator=(const ModuleClasses&) = delete;

private:
  std::vector<const camp::Class*> mClasses;
};
