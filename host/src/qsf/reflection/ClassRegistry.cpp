#include "qsf/reflection/ClassRegistry.h"

#include "qsf/Qsf.h"
#include "qsf/base/StringHashManager.h"
#include "qsf/log/LogSystem.h"

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

void rememberName(const std::string& name) {
  if (const Qsf* host = Qsf::instance()) host->getStringHashManager().registerStringHash(StringHash(name), name);
}

}

bool ClassRegistry::isOrDerivesFrom(const camp::Class& metaclass, const camp::Class& base) {
  if (&metaclass == &base) return true;
  for (std::size_t i = 0; i < metaclass.baseCount(); ++i)
    if (isOrDerivesFrom(metaclass.base(i), base)) return true;
  return false;
}

void ClassRegistry::addDeclaration(void (*declare)()) { declarations().push_back(declare); }

void ClassRegistry::declareAll() {
  for (void (*declare)() : declarations())
    declare();
}

void ClassRegistry::addClass(const camp::Class& campClass, ComponentMaker maker) {
  rememberName(campClass.name());
  if (!classes().byId.emplace(StringHash(campClass.name()), Classes::Entry{&campClass, maker}).second) return;
  auto& byName = classes().byName;
  const auto isBefore = [](const camp::Class* left, const camp::Class* right) { return left->name() < right->name(); };
  byName.insert(std::lower_bound(byName.begin(), byName.end(), &campClass, isBefore), &campClass);
}

void ClassRegistry::addOtherName(const camp::Class& campClass, const std::string& name) {
  rememberName(name);
  classes().byId.emplace(StringHash(name), Classes::Entry{&campClass, nullptr});
}

void ClassRegistry::removeClass(const camp::Class& campClass) {
  if (std::erase(classes().byName, &campClass) == 0) return;
  std::erase_if(classes().byId, [&](const auto& entry) { return entry.second.campClass == &campClass; });
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

camp::UserObject ClassRegistry::construct(StringHash id, const camp::Class& base) {
  const camp::Class* metaclass = findClass(id);
  if (!metaclass || !isOrDerivesFrom(*metaclass, base)) return {};
  try {
    return metaclass->construct();
  } catch (const std::exception& fault) {
    logMessage(LogSystem::ERROR, "A " + metaclass->name() + " could not be made: " + fault.what());
    return {};
  }
}

const camp::Class* findComponentClass(StringHash componentId) { return ClassRegistry::findClass(componentId); }

}
