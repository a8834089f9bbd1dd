#pragma once
#include "game_plugin/gui/DebuggerStarter.h"
#include "game_plugin/multiplayer/SessionListener.h"
#include "game_plugin/multiplayer/SynchronizationItems.h"
#include "game_plugin/plugin/CampClasses.h"

#include "qsf/message/MessageProxy.h"
#include "qsf/plugin/Plugin.h"

#include <memory>
#include <optional>

namespace script {

/// The module as the host sees it. Made by the exported factory, owned by the host. Declares the reflected classes when
/// it is installed; MapScriptManager lives from its startup to its shutdown.
class Plugin : public qsf::Plugin {
public:
  using DeclareClasses = std::vector<const camp::Class*> (*)();
  explicit Plugin(DeclareClasses declareClasses = &declareCampClasses);
  ~Plugin() override;

  /// The newest plug-in made, or null.
  static Plugin* get();

  const char* getName() const override;
  const char* getVendor() const override;
  const char* getDescription() const override;

protected:
  /// False, with the reason in the log, if a class can't be declared.
  bool onInstall() override;
  bool onStartup() override;
  void onShutdown() override;
  void onUninstall() override {}

private:
  DeclareClasses mDeclareClasses;
  qsf::MessageProxy mReloadMessageProxy;
  std::optional<DebuggerStarter> mDebuggerStarter; ///< from startup to shutdown
  multiplayer::DataCacheItemFactoryListenerMultiplayerSchronizationHelperComponent mDataCacheListener;
  std::unique_ptr<multiplayer::SessionListener> mSessionListener; ///< from startup to shutdown
};

}
