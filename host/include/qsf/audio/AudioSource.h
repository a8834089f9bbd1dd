#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/Time.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qsf {

/// A sound file as it was found. Headless nobody hears it, so what is kept of it is its length.
class QSF_API AudioBuffer {
public:
  AudioBuffer(std::string file, Time length) : mFile(std::move(file)), mLength(length) {}
  const std::string& getFile() const { return mFile; }
  Time getLength() const { return mLength; }

private:
  std::string mFile;
  Time mLength;
};

/// How a sound is to be played.
struct AudioSettings {
  std::string sourceFile; ///< local asset name, with the ending .ogg or without
  std::uint64_t contextEntityId = UNINITIALIZED_ID;
  float volume = 1.0f;
  float referenceDistance = 5.0f; ///< units up to which a spatial sound is at full volume
  float maximumDistance = 50.0f;
  bool spatial = false;
  bool loop = false;
};

/// One run of a sound, shared between the audio manager and those who watch it.
class QSF_API AudioSource {
public:
  AudioSource(AudioSettings settings, std::shared_ptr<const AudioBuffer> buffer)
      : mSettings(std::move(settings)), mBuffer(std::move(buffer)) {}

  const AudioSettings& getSettings() const { return mSettings; }
  const AudioBuffer* getAudioBuffer() const { return mBuffer.get(); }
  /// Within the sound, from its beginning.
  Time getPosition() const { return mPosition; }
  /// A looped one plays until it is stopped.
  bool isPlaying() const { return mPlaying; }
  void stop() { mPlaying = false; }
  void advance(Time timePassed);

private:
  AudioSettings mSettings;
  std::shared_ptr<const AudioBuffer> mBuffer;
  Time mPosition;
  bool mPlaying = true;
};

}
