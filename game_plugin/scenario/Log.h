#pragma once
#include <string>

namespace script {

/// Severities as the host's log counts them; nearly all script diagnostics are information or errors.
inline constexpr int LOG_TRACE = 0;
inline constexpr int LOG_DEBUG = 1;
inline constexpr int LOG_INFO = 2;
inline constexpr int LOG_WARNING = 3;
inline constexpr int LOG_ERROR = 4;

/// True if a host runs and a message of that severity passes. Ask before building an expensive text.
bool shouldLog(int severity);
/// Logs if shouldLog.
void logMessage(int severity, const std::string& message);
inline void logInfo(const std::string& message) { logMessage(LOG_INFO, message); }
inline void logWarning(const std::string& message) { logMessage(LOG_WARNING, message); }
inline void logError(const std::string& message) { logMessage(LOG_ERROR, message); }

}
