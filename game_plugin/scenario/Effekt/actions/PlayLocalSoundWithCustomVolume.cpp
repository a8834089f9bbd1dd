#include "game_plugin/action/PlayLocalSoundWithCustomVolume.h"

#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"

namespace script {

struct PlayLocalSoundWithCustomVolumeEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "A file that holds .ogg anywhere in its name gets no ending.",
      "A looped sound that isn't waited for is stopped at once, since its action ends.",
  };

  Argument callers;
  Argument audioFile;
  bool waitForFinish = true;
  bool playInLoop = false;
  Argument volume;
  Argument referenceDistance;
  Argument maximumDistance;
};

static void read(PlayLocalSoundWithCustomVolumeEffect& effect, ParameterReader& in) {
  effect.callers = in.list(1, "no_list", "EntityList Caller", "Entities that sound");
  effect.audioFile = in.of(ParameterRole::SOUND, 2, "", "Audio File",
                           "Local asset name, with the ending .ogg or without, as it stands in the script");
  effect.waitForFinish = in.flag(3, true, "WaitForFinish", "The action lasts as long as the sound");
  effect.playInLoop = in.flag(4, false, "Play in loop", "Plays again and again");
  effect.volume = in.number(5, "1", "Volume", "1 for the usual one");
  effect.referenceDistance = in.number(6, "5", "Reference Distance", "Units up to which it is at full volume");
  effect.maximumDistance = in.number(7, "50", "Max Distance", "Units up to which it is heard");
}

static void run(const PlayLocalSoundWithCustomVolumeEffect& effect, ScenarioHandler& handler) {
  if (hints::isOn()) hintUnknownSound(effect.audioFile);
  forEachEntity(handler, effect.callers, [&](qsf::Entity& caller) {
    const float volume = handler.ResolveFloat(effect.volume);
    const float referenceDistance = handler.ResolveFloat(effect.referenceDistance);
    const float maximumDistance = handler.ResolveFloat(effect.maximumDistance);
    actionsOf(caller)
        .pushAction<PlayLocalSoundWithCustomVolume>(100, qsf::action::APPEND_TO_BACK)
        .init(effect.audioFile, volume, referenceDistance, maximumDistance, effect.playInLoop, effect.waitForFinish);
  });
}

EFFECT(PlayLocalSoundWithCustomVolume, "Actions",
       "Plays a sound at the places of entities, at a volume and with distances of its own")

}
