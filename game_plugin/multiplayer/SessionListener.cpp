#include "game_plugin/multiplayer/SessionListener.h"

#include "game_plugin/multiplayer/Instructions.h"
#include "game_plugin/multiplayer/MP_LOG_Handler.h"
#include "game_plugin/multiplayer/ScriptHandler.h"
#include "game_plugin/scenario/Log.h"

#include "em5/base/Messages.h"
#include "em5/multiplayer/NetworkManager.h"
#include "em5/plugin/Plugin.h"

namespace script::multiplayer {

namespace {

void registerHandlers(em5::multiplayer::SessionBase& session) {
  auto& handlers = session.getOperationMessageHandlerManager();
  handlers.registerHandler(ScriptHandler::MESSAGE, 0, std::make_unique<ScriptHandler>());
  handlers.registerHandler(MP_LOG_Handler::MESSAGE, 0, std::make_unique<MP_LOG_Handler>());
  logInfo("ScriptHandler was created");
}

}

SessionListener::SessionListener() {
  Instructions::clear();
  mStartupMessageProxy.registerAt(em5::Messages::APPLICATION_STARTUP_FINISHED,
                                  [this](const qsf::MessageParameters&) { connect(); });
}

void SessionListener::connect() {
  if (const em5::Plugin* plugin = em5::Plugin::getInstance())
    mConnection = plugin->getNetworkManager().getSessionCreatedSignal().connect(&registerHandlers);
  logInfo("Application Startup finished");
}

}
