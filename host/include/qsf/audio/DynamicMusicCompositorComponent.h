#pragma once
#include "qsf/component/Component.h"

namespace qsf {

/// The music of a map, on the core entity, if the map or a script puts it there: a track for each level of tension.
/// Headless, nothing is heard. Properties "MusicLevel" (0 at first), "MaxMusicVolume" (0 to 1; 1 at first), and
/// "TrackLevel", the level of the track that plays (0 at first). Each change by an operation is noted in the call
/// recorder.
class QSF_API DynamicMusicCompositorComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::DynamicMusicCompositorComponent"};
  explicit DynamicMusicCompositorComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  int getMusicLevel() const { return mMusicLevel; }
  /// The track that plays goes on until it is changed.
  void setMusicLevel(int level);
  float getMaxMusicVolume() const { return mMaxMusicVolume; }
  /// A volume outside of the range is taken to its end; one that is no number is 0.
  void setMaxMusicVolume(float volume);
  /// Takes up the track of the present level.
  void changeMusicTrack();
  int getTrackLevel() const { return mTrackLevel; }

private:
  void setMaxMusicVolumeProperty(float volume);

  float mMaxMusicVolume = 1;
  int mMusicLevel = 0;
  int mTrackLevel = 0;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::DynamicMusicCompositorComponent)
