#include "qsf/audio/AudioProxy.h"

#include "qsf/Qsf.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/base/CallRecorder.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf {

namespace {

std::string toText(bool value) { return value ? "1" : "0"; }

std::string toText(float value) { return qsf::toText(static_cast<double>(value)); }

void record(const char* operation, std::vector<std::string> arguments) {
  if (const Qsf* host = Qsf::instance())
    host->getCallRecorder().record(std::string("qsf::AudioProxy::") + operation, std::move(arguments));
}

}

void AudioProxy::setContextEntity(const Entity* entity) {
  mSettings.contextEntityId = entity ? entity->getId() : UNINITIALIZED_ID;
}

void AudioProxy::play() {
  record("play", {mSettings.sourceFile, toText(mSettings.loop), toText(mSettings.spatial), toText(mSettings.volume),
                  toText(mSettings.referenceDistance), toText(mSettings.maximumDistance)});
  if (mSource) mSource->stop();
  const Qsf* host = Qsf::instance();
  mSource = host ? host->getAudioSystem().getAudioManager().play(mSettings) : nullptr;
}

void AudioProxy::stop() {
  record("stop", {mSettings.sourceFile});
  if (mSource) mSource->stop();
}

void AudioProxy::detach() {
  record("detach", {mSettings.sourceFile});
  mSource.reset();
}

}
