#include "game_plugin/scenario/Log.h"

#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"

namespace script {

bool shouldLog(int severity) {
  const qsf::Qsf* host = qsf::Qsf::instance();
  return host && host->getLogSystem().shouldBeLogged(severity);
}

void logMessage(int severity, const std::string& message) {
  if (shouldLog(severity)) qsf::Qsf::instance()->getLogSystem().log(severity, message);
}

}
