#pragma once
#include "qsf/message/MessageProxy.h"

namespace script {

/// Has the debugger's window made when a game has started and destroyed when one ends. Owned by the plug-in; of several
/// that live, the first does it.
class DebuggerStarter {
public:
  DebuggerStarter();
  ~DebuggerStarter();
  DebuggerStarter(const DebuggerStarter&) = delete;
  DebuggerStarter& operator=(const DebuggerStarter&) = delete;

private:
  qsf::MessageProxy mStartupProxy;
  qsf::MessageProxy mShutdownProxy;
};

}
