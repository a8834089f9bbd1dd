#include "game_plugin/scenario/lifecycle/ScriptFates.h"

#include "game_plugin/scenario/lifecycle/MapScriptManager.h"

#include <algorithm>

namespace script::fates {

namespace {

/// Scripts may start and stop each other without end under ever new names; what comes beyond is not noted.
constexpr std::size_t MOST_FATES = 1000;

std::vector<Fate>& list() {
  static std::vector<Fate> fates;
  return fates;
}

std::vector<std::string>& unreadable() {
  static std::vector<std::string> messages;
  return messages;
}

void note(const MapScriptEntry& entry, const std::string& what) {
  const qsf::Time time = entry.document ? entry.document->time : qsf::Time::ZERO;
  const auto known = std::ranges::find_if(
      list(), [&](const Fate& fate) { return fate.path == entry.path && fate.key == entry.key && fate.what == what; });
  if (known != list().end()) {
    ++known->count;
    known->time = time;
  } else if (list().size() < MOST_FATES) {
    list().push_back({entry.key, entry.project, entry.path, std::string(toText(entry.mode)), what, time});
  }
}

}

void noteRefused(const MapScriptEntry& entry, const std::string& why) { note(entry, why); }
void noteEnded(const MapScriptEntry& entry, const std::string& what) { note(entry, what); }
void noteUnreadable(const std::string& message) { unreadable().push_back(message); }
const std::vector<Fate>& all() { return list(); }
const std::vector<std::string>& unreadableFiles() { return unreadable(); }

void clear() {
  list().clear();
  unreadable().clear();
}

}
