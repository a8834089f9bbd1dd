#pragma once
#include "qsf/audio/AudioSource.h"

namespace qsf {

class Entity;

/// A handle to play sounds with, one at a time. The operations play, stop and detach are noted in the call recorder
/// with the source file. A sound goes on when its proxy is destroyed: who wants silence stops it first.
class QSF_API AudioProxy {
public:
  AudioProxy() = default;
  AudioProxy(const AudioProxy&) = delete;
  AudioProxy& operator=(const AudioProxy&) = delete;

  /// Hold from the next play on.
  void setSourceFile(const std::string& sourceFile) { mSettings.sourceFile = sourceFile; }
  void setSpatial(bool spatial) { mSettings.spatial = spatial; }
  void setLoop(bool loop) { mSettings.loop = loop; }
  void setVolume(float volume) { mSettings.volume = volume; }
  void setReferenceDistance(float distance) { mSettings.referenceDistance = distance; }
  void setMaximumDistance(float distance) { mSettings.maximumDistance = distance; }
  /// Null: the sound comes from nowhere.
  void setContextEntity(const Entity* entity);
  const AudioSettings& getSettings() const { return mSettings; }

  /// Starts the sound, in the place of the one before. A sound that doesn't exist doesn't play.
  void play();
  void stop();
  /// Lets go of what plays; it can't be stopped by this proxy any more.
  void detach();
  bool isPlaying() const { return mSource && mSource->isPlaying(); }
  /// Null before the first play, after a detach and for a sound that doesn't exist.
  const std::shared_ptr<AudioSource>& getAudioSource() const { return mSource; }

private:
  AudioSettings mSettings;
  std::shared_ptr<AudioSource> mSource;
};

}
