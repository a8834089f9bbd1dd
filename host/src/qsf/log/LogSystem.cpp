#include "qsf/log/LogSystem.h"
#include "qsf/Qsf.h"

#include <array>

namespace qsf {

namespace {

constexpr std::array<std::string_view, 6> SEVERITY_NAMES{"TRACE", "DEBUG", "INFO", "WARNING", "ERROR", "NONE"};

/// Listeners may log themselves, but not for ever.
constexpr int MAXIMUM_DEPTH = 8;

}

LogSystem::LogSystem() = default;
LogSystem::~LogSystem() = default;

void LogSystem::log(int severity, const std::string& message) {
  if (severity < TRACE || !shouldBeLogged(severity) || mDepth >= MAXIMUM_DEPTH) return;
  ++mDepth;
  // A copy, because a listener may add and remove listeners; one that was removed meanwhile is not called any more.
  const std::vector<Entry> listeners = mListeners;
  for (const Entry& entry : listeners) {
    const auto isEntry = [&entry](const Entry& other) { return other.key == entry.key; };
    if (std::none_of(mListeners.begin(), mListeners.end(), isEntry)) continue;
    try {
      (*entry.listener)(Record{severity, message});
    } catch (...) {
      // There is nowhere left to tell of a fault in the log itself; the other listeners still get the line.
    }
  }
  --mDepth;
}

std::size_t LogSystem::addListener(Listener listener) {
  mListeners.push_back({mNextKey, std::make_shared<Listener>(std::move(listener))});
  return mNextKey++;
}

void LogSystem::removeListener(std::size_t key) {
  std::erase_if(mListeners, [key](const Entry& entry) { return entry.key == key; });
}

std::string_view LogSystem::getSeverityName(int severity) {
  return severity < TRACE || severity > NONE ? std::string_view{} : SEVERITY_NAMES[static_cast<std::size_t>(severity)];
}

void logMessage(int severity, const std::string& message) {
  if (const Qsf* host = Qsf::instance()) host->getLogSystem().log(severity, message);
}

}
