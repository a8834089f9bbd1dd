#pragma once
#include "qsf/plugin/Plugin.h"

#include <memory>
#include <string>
#include <vector>

namespace qsf {

/// Loads plug-ins and drives their life: onInstall and onStartup in the order of loading, onShutdown and onUninstall in
/// reverse. Owned by Qsf, which unloads what is still there before any other system goes.
class QSF_API PluginSystem {
public:
  PluginSystem();
  ~PluginSystem();
  PluginSystem(const PluginSystem&) = delete;
  PluginSystem& operator=(const PluginSystem&) = delete;

  /// Name of the function that makes a library's plug-in with `new`, a `qsf::Plugin* ()` with C linkage. It holds the
  /// library's name: `CreatePluginInstance_birds_new` for a file `libbirds.so`.
  static std::string getFactoryName(const std::string& libraryPath);

  /// Loads the shared library, makes its plug-in, installs and starts it. Null if the plug-in refuses to be installed
  /// or started, which is logged at severity 4; it is released then. Throws LoadError if the file or the factory is
  /// missing, the factory makes nothing, or the library is loaded already.
  Plugin* loadPlugin(const std::string& path, const std::string& factoryName);
  /// The same with the factory that belongs to the library's name.
  Plugin* loadPlugin(const std::string& path) { return loadPlugin(path, getFactoryName(path)); }
  /// The same with a plug-in that is part of the program.
  Plugin* addPlugin(std::unique_ptr<Plugin> plugin);

  /// Shuts all plug-ins down and releases them, the newest first. A library stays in memory if it is to be kept or if
  /// it has declared classes: CAMP never forgets a class, and its data lie in the library.
  void unloadPlugins();
  /// Leak checkers can name the functions of a library only while it is in memory. Off by default.
  void setKeepLibraries(bool keep) { mKeepLibraries = keep; }

  /// The plug-ins that run, in the order of loading.
  const std::vector<Plugin*>& getPlugins() const { return mPlugins; }

private:
  struct Entry;
  Plugin* start(std::unique_ptr<Entry> entry);
  static void end(Entry& entry);
  void release(std::unique_ptr<Entry> entry) const;

  std::vector<std::unique_ptr<Entry>> mEntries;
  std::vector<Plugin*> mPlugins; ///< those of the entries
  bool mKeepLibraries = false;
};

}
