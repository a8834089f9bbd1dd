#pragma once
#include "qsf/audio/AudioSource.h"
#include "qsf/job/JobProxy.h"

#include <map>
#include <optional>
#include <vector>

namespace qsf {

/// What plays. Sounds last as long as their files say and go on with the simulation; a paused one rests them. Owned by
/// the audio system.
class QSF_API AudioManager {
public:
  struct Statistics {
    std::uint32_t playing = 0; ///< sounds that play
    std::uint32_t looped = 0;  ///< of these, looped ones
    std::uint32_t buffers = 0; ///< sound files that were read
  };

  /// Null if no mounted project has the sound (which is logged at severity 2) or if its file is no Ogg Vorbis (logged
  /// at severity 3). At most 256 play; the oldest gives way.
  std::shared_ptr<AudioSource> play(const AudioSettings& settings);
  /// Sounds that play, in the order of their start; ended ones leave with the next frame of simulation.
  const std::vector<std::shared_ptr<AudioSource>>& getSources() const { return mSources; }
  /// Silence, at a game's end.
  void stopAll();

  Statistics getStatistics() const;
  /// For tests: numbers to tell instead of the true ones.
  void overrideStatistics(const std::optional<Statistics>& statistics) { mStatistics = statistics; }

private:
  std::shared_ptr<const AudioBuffer> findBuffer(const std::string& sourceFile);
  void advance(Time timePassed);

  std::vector<std::shared_ptr<AudioSource>> mSources;
  std::map<std::string, std::shared_ptr<const AudioBuffer>> mBuffers; // by file
  std::optional<Statistics> mStatistics;
  JobProxy mJob;
};

}
