#include "qsf/reflection/ClassRegistry.h"

namespace qsf {

namespace {

struct Classes {
  struct Entry {
    const camp::Class* campClass = nullptr;
    ClassRegistry::ComponentMaker maker = nullptr;
  };
  std::unordered_map<StringHash, Entry> byId;
  std::vector<const camp::Class*> byName;
};

Classes& classes() {
  static Classes instance;
  return instance;
}

/// What the constants of the sources have registered; filled before main begins.
std::vector<void (*)()>& declarations() {
  static std::vector<void (*)()> instance;
  return instance;
}

}

void ClassRegistry::addDeclaration(void (*declare)()) { declarations().push_back(declare); }

void ClassRegistry::declareAll() {
  for (void (*declare)() : declarations())
    declare();
}

void ClassRegistry::addClass(const camp::Class& campClass, ComponentMaker maker) {
  if (!classes().byId.emplace(StringHash(campClass.name()), Classes::Entry{&campClass, maker}).second) return;
  auto& byName = classes().byName;
  const auto isBefore = [](const camp::Class* left, const camp::Class* right) { return left->name() < right->name(); };
  byName.insert(std::lower_bound(byName.begin(), byName.end(), &campClass, isBefore), &campClass);
}

void ClassRegistry::removeClass(const camp::Class& campClass) {
  const auto found = classes().byId.find(StringHash(campClass.name()));
  if (found == classes().byId.end() || found->second.campClass != &campClass) return;
  classes().byId.erase(found);
  std::erase(classes().byName, &campClass);
}

const camp::Class* ClassRegistry::findClass(StringHash id) {
  const auto found = classes().byId.find(id);
  return found == classes().byId.end() ? nullptr : found->second.campClass;
}

ClassRegistry::ComponentMaker ClassRegistry::findComponentMaker(StringHash id) {
  const auto found = classes().byId.find(id);
  return found == classes().byId.end() ? nullptr : found->second.maker;
}

const std::vector<const camp::Class*>& ClassRegistry::getClasses() { return classes().byName; }

const camp::Class* findComponentClass(StringHash componentId) { return ClassRegistry::findClass(componentId); }

}
