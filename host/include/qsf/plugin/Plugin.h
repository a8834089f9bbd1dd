#pragma once
#include "qsf/Export.h"

#include <camp/class.hpp>

#include <memory>
#include <string>
#include <vector>

namespace qsf {

/// The game's version that a plug-in was built for.
class QSF_API PluginVersion {
public:
  virtual ~PluginVersion() = default;
  virtual std::string getText() const = 0;
};

/// Base of a plug-in. The host makes it through the library's exported factory and calls onInstall, onStartup and
/// onShutdown in this order, each at most once per load. The host owns the plug-in.
class QSF_API Plugin {
public:
  /// Takes the version over.
  explicit Plugin(PluginVersion* version);
  virtual ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  virtual const char* getName() const = 0;
  virtual const char* getVendor() const = 0;
  virtual const char* getDescription() const = 0;

  /// Classes that the plug-in has declared, in order.
  const std::vector<const camp::Class*>& getCampClasses() const { return mCampClasses; }

protected:
  friend class PluginSystem;
  /// False: the plug-in is not started.
  virtual bool onInstall() = 0;
  virtual bool onStartup() = 0;
  virtual void onShutdown() = 0;
  virtual void onUninstall() = 0;

  /// Makes a declared class known to the host: components of that class can be created by name. The class id is the
  /// hash of its name.
  void addCampClass(const camp::Class& campClass);

private:
  std::unique_ptr<PluginVersion> mVersion;
  std::vector<const camp::Class*> mCampClasses;
};

}
