#include "qsf/audio/DynamicMusicCompositorComponent.h"

#include "qsf/base/RecordedOperation.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf {

namespace {

const RecordedOperation setMusicLevelCall{"qsf::DynamicMusicCompositorComponent::setMusicLevel", "level"};
const RecordedOperation setMaxMusicVolumeCall{"qsf::DynamicMusicCompositorComponent::setMaxMusicVolume",
                                              "volume from 0 to 1"};
const RecordedOperation changeMusicTrackCall{"qsf::DynamicMusicCompositorComponent::changeMusicTrack", ""};

const DeclaredClass<DynamicMusicCompositorComponent> declared;

}

void DynamicMusicCompositorComponent::declareCamp() {
  camp::Class::declare<DynamicMusicCompositorComponent>("qsf::DynamicMusicCompositorComponent")
      .base<Component>()
      .constructor1<Prototype*>()
      .property("MusicLevel", &DynamicMusicCompositorComponent::mMusicLevel)
      .property("MaxMusicVolume", &DynamicMusicCompositorComponent::getMaxMusicVolume,
                &DynamicMusicCompositorComponent::setMaxMusicVolumeProperty)
      .property("TrackLevel", &DynamicMusicCompositorComponent::mTrackLevel);
}

void DynamicMusicCompositorComponent::setMusicLevel(int level) {
  mMusicLevel = level;
  setMusicLevelCall.record({std::to_string(level)});
}

void DynamicMusicCompositorComponent::setMaxMusicVolume(float volume) {
  setMaxMusicVolumeProperty(volume);
  setMaxMusicVolumeCall.record({toText(static_cast<double>(mMaxMusicVolume))});
}

void DynamicMusicCompositorComponent::setMaxMusicVolumeProperty(float volume) {
  mMaxMusicVolume = volume > 0 ? std::min(volume, 1.0f) : 0;
}

void DynamicMusicCompositorComponent::changeMusicTrack() {
  mTrackLevel = mMusicLevel;
  changeMusicTrackCall.record();
}

}
