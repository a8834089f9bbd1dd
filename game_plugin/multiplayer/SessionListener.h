#pragma once
#include "qsf/message/MessageProxy.h"

#include <boost/signals2/connection.hpp>

namespace script::multiplayer {

/// Gives each session that this machine takes part in the handlers of the scripts' messages. Made when the module
/// starts, owned by the plug-in; it begins to listen when the game's application stands.
class SessionListener {
public:
  SessionListener();
  SessionListener(const SessionListener&) = delete;
  SessionListener& operator=(const SessionListener&) = delete;

private:
  void connect();

  qsf::MessageProxy mStartupMessageProxy;
  boost::signals2::scoped_connection mConnection;
};

}
