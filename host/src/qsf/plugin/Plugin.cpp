#include "qsf/plugin/Plugin.h"
#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

Plugin::Plugin(PluginVersion* version) : mVersion(version) {}
Plugin::~Plugin() = default;

void Plugin::addCampClass(const camp::Class& campClass) {
  mCampClasses.push_back(&campClass);
  ClassRegistry::addClass(campClass);
}

}
