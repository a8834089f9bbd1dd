#pragma once
#include "game_plugin/scenario/Log.h"

#include <string_view>

namespace script {

/// True, with the message in the log, if a parameter was left at its placeholder; the entry then does nothing. The
/// message's severity is an error unless the entry says otherwise.
inline bool isLeftAt(std::string_view value, std::string_view placeholder, std::string_view message,
                     int severity = LOG_ERROR) {
  if (value != placeholder) return false;
  logMessage(severity, std::string(message));
  return true;
}

}
