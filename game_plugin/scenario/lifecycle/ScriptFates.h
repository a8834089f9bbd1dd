#pragma once
#include "qsf/base/Time.h"

#include <cstdint>
#include <string>
#include <vector>

namespace script {

struct MapScriptEntry;

/// What became of scripts that the manager knows no more, or never took: tools show it, since a script that is missing
/// without a word costs its author an hour. Forgotten when the configurations are read anew.
namespace fates {

struct Fate {
  std::string key;
  std::string project; ///< empty for a temporary script
  std::string path;
  std::string mode;
  std::string what;        ///< "stopped by StopScenario, day.script:12"
  qsf::Time time;          ///< how long the last instance ran
  std::uint64_t count = 1; ///< instances with this fate
};

/// A configured script that can't be used, and why.
void noteRefused(const MapScriptEntry& entry, const std::string& why);
/// A script that is taken off the list.
void noteEnded(const MapScriptEntry& entry, const std::string& what);
/// A MapScript.json that can't be read; all its scripts are missing.
void noteUnreadable(const std::string& message);

const std::vector<Fate>& all();
const std::vector<std::string>& unreadableFiles();
void clear();

}

}
