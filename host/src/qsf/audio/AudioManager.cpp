#include "qsf/audio/AudioManager.h"

#include "VorbisFile.h"
#include "qsf/asset/AssetProxy.h"
#include "qsf/log/LogSystem.h"

#include <stdexcept>

namespace qsf {

namespace {

constexpr std::string_view ENDING = ".ogg";

/// A script may start looped sounds for ever; as with a real mixer the oldest gives way.
constexpr std::size_t MAXIMUM_SOURCES = 256;

/// Empty if no project has it.
std::string findSoundFile(const std::string& sourceFile) {
  std::string name = sourceFile;
  if (name.ends_with(ENDING)) name.resize(name.size() - ENDING.size());
  const BaseAsset* asset = AssetProxy(name).getAsset();
  return asset && asset->getFile().ends_with(ENDING) ? asset->getFile() : std::string();
}

}

void AudioSource::advance(Time timePassed) {
  if (!mPlaying) return;
  mPosition += timePassed;
  const Time length = mBuffer->getLength();
  if (mPosition < length) return;
  mPlaying = mSettings.loop;
  mPosition = mPlaying ? Time::fromMicroseconds(mPosition.getMicroseconds() % length.getMicroseconds()) : length;
}

std::shared_ptr<AudioSource> AudioManager::play(const AudioSettings& settings) {
  const std::shared_ptr<const AudioBuffer> buffer = findBuffer(settings.sourceFile);
  if (!buffer) return nullptr;
  if (mSources.size() >= MAXIMUM_SOURCES) {
    mSources.front()->stop();
    mSources.erase(mSources.begin());
  }
  mSources.push_back(std::make_shared<AudioSource>(settings, buffer));
  if (!mJob.isRegistered())
    mJob.registerInSimulation([this](const JobArguments& arguments) { advance(arguments.getTimePassed()); });
  return mSources.back();
}

std::shared_ptr<const AudioBuffer> AudioManager::findBuffer(const std::string& sourceFile) {
  const std::string file = findSoundFile(sourceFile);
  if (file.empty()) {
    logMessage(LogSystem::INFO, "There is no sound \"" + sourceFile + "\"");
    return nullptr;
  }
  std::shared_ptr<const AudioBuffer>& buffer = mBuffers[file];
  if (buffer) return buffer;
  try {
    buffer = std::make_shared<AudioBuffer>(file, readVorbisLength(file));
  } catch (const std::exception& fault) {
    logMessage(LogSystem::WARNING, std::string(fault.what()) + "; the sound doesn't play");
  }
  return buffer;
}

void AudioManager::advance(Time timePassed) {
  for (const auto& source : mSources)
    source->advance(timePassed);
  std::erase_if(mSources, [](const auto& source) { return !source->isPlaying(); });
  if (mSources.empty()) mJob.unregister();
}

void AudioManager::stopAll() {
  for (const auto& source : mSources)
    source->stop();
  mSources.clear();
  mJob.unregister();
}

AudioManager::Statistics AudioManager::getStatistics() const {
  if (mStatistics) return *mStatistics;
  Statistics statistics;
  statistics.buffers = static_cast<std::uint32_t>(
      std::count_if(mBuffers.begin(), mBuffers.end(), [](const auto& entry) { return entry.second != nullptr; }));
  for (const auto& source : mSources) {
    if (!source->isPlaying()) continue;
    ++statistics.playing;
    if (source->getSettings().loop) ++statistics.looped;
  }
  return statistics;
}

}
