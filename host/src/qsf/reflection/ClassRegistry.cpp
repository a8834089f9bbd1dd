#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

struct Classes {
  std::unordered_map<StringHash, const camp::Class*> byId;
  std::vector<const camp::Class*> inOrder;
};

Classes& classes() {
  static Classes instance;
  return instance;
}

}

void ClassRegistry::addClass(const camp::Class& campClass) {
  if (classes().byId.emplace(StringHash(campClass.name()), &campClass).second) classes().inOrder.push_back(&campClass);
}

void ClassRegistry::removeClass(const camp::Class& campClass) {
  const auto found = classes().byId.find(StringHash(campClass.name()));
  if (found == classes().byId.end() || found->second != &campClass) return;
  classes().byId.erase(found);
  std::erase(classes().inOrder, &campClass);
}

const camp::Class* ClassRegistry::findClass(StringHash id) {
  const auto found = classes().byId.find(id);
  return found == classes().byId.end() ? nullptr : found->second;
}

const std::vector<const camp::Class*>& ClassRegistry::getClasses() { return classes().inOrder; }

const camp::Class* findComponentClass(StringHash componentId) { return ClassRegistry::findClass(componentId); }

}
