#include "game_plugin/scenario/language/Truncation.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "qsf/Qsf.h"
#include "qsf/audio/AudioSettingsGroup.h"
#include "qsf/audio/DynamicMusicCompositorComponent.h"
#include "qsf/map/Map.h"

namespace script {

struct SetMusicLevelEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Level 0 leaves the level at 2, silent.",
      "Silence is ended by any other level, also by the 2 that silence has left, which changes no track.",
  };

  Argument level;
};

static void read(SetMusicLevelEffect& effect, ParameterReader& in) {
  effect.level = in.number(1, "1", "MusicLevel", "Level of tension; 0 is silence");
}

/// The way over another level makes the music take up its track.
static void silence(qsf::DynamicMusicCompositorComponent& music) {
  music.setMaxMusicVolume(0);
  music.setMusicLevel(1);
  music.changeMusicTrack();
  music.setMusicLevel(2);
  music.changeMusicTrack();
}

static void run(const SetMusicLevelEffect& effect, ScenarioHandler& handler) {
  const float level = handler.ResolveFloat(effect.level);
  const qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  auto* music = core ? core->getComponent<qsf::DynamicMusicCompositorComponent>() : nullptr;
  if (!music) return;
  if (level == 0) return silence(*music);
  if (const qsf::UniqueInstance<qsf::AudioSettingsGroup> settings; settings)
    music->setMaxMusicVolume(settings->getMixerChannelMusicVolume());
  if (level == static_cast<float>(music->getMusicLevel())) return;
  music->setMusicLevel(truncateToInt(level));
  music->changeMusicTrack();
}

EFFECT(SetMusicLevel, "General", "Sets the level of tension of the map's music")

}
