#include "qsf/audio/AudioProxy.h"

#include "qsf/Qsf.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf {

namespace {

const RecordedOperation playCall{"qsf::AudioProxy::play", "source file, loop, spatial, volume, reference distance, "
                                                          "maximum distance; for a missing file, too"};
const RecordedOperation stopCall{"qsf::AudioProxy::stop", "source file"};
const RecordedOperation detachCall{"qsf::AudioProxy::detach", "source file"};

std::string toText(bool value) { return value ? "1" : "0"; }

std::string toText(float value) { return qsf::toText(static_cast<double>(value)); }

}

void AudioProxy::setContextEntity(const Entity* entity) {
  mSettings.contextEntityId = entity ? entity->getId() : UNINITIALIZED_ID;
}

void AudioProxy::play() {
  playCall.record({mSettings.sourceFile, toText(mSettings.loop), toText(mSettings.spatial), toText(mSettings.volume),
                   toText(mSettings.referenceDistance), toText(mSettings.maximumDistance)});
  if (mSource) mSource->stop();
  const Qsf* host = Qsf::instance();
  mSource = host ? host->getAudioSystem().getAudioManager().play(mSettings) : nullptr;
}

void AudioProxy::stop() {
  stopCall.record({mSettings.sourceFile});
  if (mSource) mSource->stop();
}

void AudioProxy::detach() {
  detachCall.record({mSettings.sourceFile});
  mSource.reset();
}

}
