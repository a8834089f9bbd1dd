#include "qsf/plugin/PluginSystem.h"
#include "qsf/base/LoadError.h"
#include "qsf/game/Plugin.h"
#include "qsf/log/FaultCounter.h"
#include "qsf/log/LogSystem.h"
#include "qsf/plugin/DynamicLibrary.h"
#include "qsf/reflection/ClassRegistry.h"

#include <filesystem>

namespace qsf {

/// A plug-in and the library that its code lies in, which must go after it.
struct PluginSystem::Entry {
  std::unique_ptr<DynamicLibrary> library; ///< null for a plug-in of the program itself
  std::unique_ptr<Plugin> plugin;
};

PluginSystem::PluginSystem() = default;

PluginSystem::~PluginSystem() { unloadPlugins(); }

std::string PluginSystem::getFactoryName(const std::string& libraryPath) {
  std::string name = std::filesystem::path(libraryPath).filename().string();
  if (name.starts_with("lib")) name.erase(0, 3);
  name.erase(std::min(name.find('.'), name.size())); // a version may follow the ending
  return "CreatePluginInstance_" + name + "_new";
}

Plugin* PluginSystem::loadPlugin(const std::string& path, const std::string& factoryName) {
  auto entry = std::make_unique<Entry>();
  entry->library = std::make_unique<DynamicLibrary>(path);
  for (const auto& other : mEntries)
    if (other->library && other->library->getPath() == entry->library->getPath())
      throw LoadError(path, "", "this plug-in library is loaded already");

  using Factory = Plugin*();
  // dlsym's result is a function here by the contract of plug-ins.
  auto* factory = reinterpret_cast<Factory*>(entry->library->getSymbol(factoryName));
  if (!factory)
    throw LoadError(path, factoryName,
                    "the library exports no such function; a plug-in needs this factory with C linkage");
  callGuarded([&] { entry->plugin.reset(factory()); }, [&] { return factoryName + " of " + path; });
  if (!entry->plugin) throw LoadError(path, factoryName, "the factory made no plug-in");
  return start(std::move(entry));
}

Plugin* PluginSystem::addPlugin(std::unique_ptr<Plugin> plugin) {
  auto entry = std::make_unique<Entry>();
  entry->plugin = std::move(plugin);
  return entry->plugin ? start(std::move(entry)) : nullptr;
}

Plugin* PluginSystem::start(std::unique_ptr<Entry> entry) {
  Plugin& plugin = *entry->plugin;
  const std::string name = plugin.getName();
  bool installed = false;
  bool started = false;
  callGuarded([&] { installed = plugin.onInstall(); }, [&] { return "the installation of plug-in '" + name + "'"; });
  if (installed)
    callGuarded([&] { started = plugin.onStartup(); }, [&] { return "the start of plug-in '" + name + "'"; });
  if (started) {
    mPlugins.push_back(&plugin);
    mEntries.push_back(std::move(entry));
    return &plugin;
  }
  logMessage(LogSystem::ERROR, "The plug-in '" + name + "' could not be " + (installed ? "started" : "installed"));
  if (installed) callGuarded([&] { plugin.onUninstall(); }, [&] { return "the removal of plug-in '" + name + "'"; });
  release(std::move(entry));
  return nullptr;
}

void PluginSystem::end(Entry& entry) {
  Plugin& plugin = *entry.plugin;
  const std::string name = plugin.getName();
  callGuarded([&] { plugin.onShutdown(); }, [&] { return "the shutdown of plug-in '" + name + "'"; });
  callGuarded([&] { plugin.onUninstall(); }, [&] { return "the removal of plug-in '" + name + "'"; });
}

void PluginSystem::release(std::unique_ptr<Entry> entry) const {
  const auto& classes = entry->plugin->getCampClasses();
  if (entry->library && (mKeepLibraries || !classes.empty())) entry->library->keep();
  for (const camp::Class* campClass : classes) {
    if (auto* game = game::Plugin::getInstance())
      game->getCommandSystem().getCommandManager().forgetCommand(StringHash(campClass->name()));
    ClassRegistry::removeClass(*campClass);
  }
  // Members go in reverse order: the plug-in while its library is still there.
}

void PluginSystem::unloadPlugins() {
  while (!mEntries.empty()) {
    // The plug-in stays in the list while it shuts down: what it calls may ask for it.
    end(*mEntries.back());
    std::unique_ptr<Entry> entry = std::move(mEntries.back());
    mEntries.pop_back();
    mPlugins.pop_back();
    release(std::move(entry));
  }
}

}
