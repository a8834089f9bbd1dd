#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"
#include "game_plugin/scenario/world/WorldHints.h"

#include "em5/action/PlayAudioAction.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"

namespace script {

struct PlayGlobalSoundEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Sounds wait for each other: they stand in the plan of the core entity, entity 0.",
  };

  Argument audioFile;
};

static void read(PlayGlobalSoundEffect& effect, ParameterReader& in) {
  effect.audioFile =
      in.of(ParameterRole::SOUND, 1, "no_file", "GlobalSoundFile", "Local asset name, like em5/audio/test/beep.ogg");
}

static void run(const PlayGlobalSoundEffect& effect, ScenarioHandler& handler) {
  const std::string audioFile = handler.ResolveString(effect.audioFile);
  if (isLeftAt(audioFile, "no_file", "PlayGlobalSoundEffect::AudioFile not found")) return;
  if (hints::isOn()) hintUnknownSound(audioFile);
  qsf::Entity* core = qsf::getMainMap().getCoreEntity();
  if (!core) return;
  actionsOf(*core)
      .pushAction<em5::PlayAudioAction>(100, qsf::action::APPEND_TO_BACK)
      .init(audioFile, nullptr, false, false, true, std::nullopt, false);
}

EFFECT(PlayGlobalSound, "Actions", "Plays a sound that is heard everywhere")

}
