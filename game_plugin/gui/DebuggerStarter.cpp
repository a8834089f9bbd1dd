#include "game_plugin/gui/DebuggerStarter.h"

#include "game_plugin/gui/DebuggerWindow.h"

#include "em5/base/Messages.h"

namespace script {

static const DebuggerStarter* theStarter = nullptr;

DebuggerStarter::DebuggerStarter() {
  if (theStarter) return;
  theStarter = this;
  mStartupProxy.registerAt(em5::Messages::GAME_STARTUP_FINISHED,
                           [](const qsf::MessageParameters&) { DebuggerWindow::startUp(); });
  mShutdownProxy.registerAt(em5::Messages::GAME_SHUTDOWN_STARTING,
                            [](const qsf::MessageParameters&) { DebuggerWindow::destroy(); });
}

DebuggerStarter::~DebuggerStarter() {
  if (theStarter == this) theStarter = nullptr;
}

}
