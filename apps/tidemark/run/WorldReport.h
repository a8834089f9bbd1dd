#pragma once
#include "qsf/audio/AudioManager.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace qsf {
class Qsf;
}

namespace tidemark::run {

/// Icons and bars over one entity.
struct OverlayReport {
  std::uint64_t entityId = 0;
  std::string name;
  std::set<int> icons;
  std::map<int, float> bars; ///< from 0 to 1
};

/// A hint or a message of the supervisor, however often it was shown.
struct ShownText {
  std::string text;
  std::optional<std::uint32_t> supervisor; ///< who shows beside a hint
  bool audioOnly = false;                  ///< a message that is only heard
  std::uint64_t times = 0;
  double secondsLeft = 0; ///< on the screen; 0: it has gone
};

struct SoundReport {
  std::string file;                      ///< local asset name
  std::optional<std::uint64_t> entityId; ///< where it comes from; nothing: from nowhere
  bool spatial = false;
  bool loop = false;
  float volume = 1;
  double position = 0; ///< seconds from its beginning
  double length = 0;   ///< seconds
};

/// What a player would have seen and heard: icons, bars and sounds as they are, hints and messages of the whole run.
struct WorldReport {
  std::vector<OverlayReport> overlays; ///< by entity
  std::vector<ShownText> hints;        ///< in the order of their first showing
  std::vector<ShownText> supervisorMessages;
  std::vector<SoundReport> sounds; ///< in the order of their start
  qsf::AudioManager::Statistics audio;
};

/// Of a game that still runs. Hints and messages come from the call recorder, which forgets the oldest of very many
/// calls.
WorldReport collectWorld(const qsf::Qsf& host);

/// Tables for people; empty if there is nothing to tell.
std::string describeWorld(const WorldReport& report);
/// Adds the members "overlays", "shownHints", "supervisorMessages" and "audio".
void addWorld(const WorldReport& report, nlohmann::ordered_json& root);

}
