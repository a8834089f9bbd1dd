#pragma once
#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qsf {
class Qsf;
}

namespace tidemark::run {

/// The game as a whole, at the run's end: what scripts steer beside units, also where a desk has nothing to show it
/// with.
struct GameReport {
  std::string timeOfDay; ///< "12:45:30"; empty for a map without a clock
  std::string language;
  std::vector<std::string> projects;                ///< in the order of mounting
  std::vector<std::pair<std::string, bool>> layers; ///< in the map's order, whether they are active
  bool simulates = false;
  struct Music {
    int level = 0;
    int trackLevel = 0; ///< of the track that plays
    float maximumVolume = 0;
  };
  std::optional<Music> music;               ///< nothing for a map without music
  std::optional<std::uint64_t> droneEntity; ///< what the drone's camera looks at, while its window shows
  std::vector<std::pair<std::string, std::uint64_t>> pages; ///< asked for in the player's browser, how often
  bool cloudSyncPaused = false;
  bool achievementsLocked = false;
};

/// Of a game or an editor that still runs. The pages come from the call recorder, which forgets the oldest of very many
/// calls.
GameReport collectGame(const qsf::Qsf& host);

/// A table for people of what isn't as it is in any game; empty if all is.
std::string describeGame(const GameReport& report);
/// Adds the member "game".
void addGame(const GameReport& report, nlohmann::ordered_json& root);

}
