#pragma once
#include "qsf/Export.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qsf {

/// The host's log. Severities are plain numbers because plug-ins pass them through; anything outside 0 to 5 is not
/// logged.
class QSF_API LogSystem {
public:
  enum Severity { TRACE = 0, DEBUG = 1, INFO = 2, WARNING = 3, ERROR = 4, NONE = 5 };

  /// One line as listeners see it.
  struct Record {
    int severity;
    std::string_view message;
  };
  using Listener = std::function<void(const Record&)>;

  LogSystem();
  ~LogSystem();
  LogSystem(const LogSystem&) = delete;
  LogSystem& operator=(const LogSystem&) = delete;

  /// True if a message of that severity passes the threshold. Callers ask first, to save the cost of building the text.
  bool shouldBeLogged(int severity) const { return severity >= mThreshold && severity <= NONE; }
  /// Hands the message to every listener, in the order they were added. Drops it if it doesn't pass the threshold.
  void log(int severity, const std::string& message);

  void setThreshold(int severity) { mThreshold = severity; }
  int getThreshold() const { return mThreshold; }

  /// Returns a key for removeListener. Listeners may be added and removed from inside a listener.
  std::size_t addListener(Listener listener);
  void removeListener(std::size_t key);

  /// "TRACE" to "NONE"; empty for other numbers.
  static std::string_view getSeverityName(int severity);

private:
  struct Entry {
    std::size_t key;
    std::shared_ptr<Listener> listener;
  };
  std::vector<Entry> mListeners;
  std::size_t mNextKey = 1;
  int mThreshold = INFO;
  int mDepth = 0;
};

/// Logs through the running host if there is one and the severity passes; the host's own code logs with it, too.
QSF_API void logMessage(int severity, const std::string& message);

}
