#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/actions/Plans.h"
#include "game_plugin/scenario/shared/lists/ListOut.h"
#include "game_plugin/scenario/shared/parameters/Placeholder.h"

#include "em5/action/PlayAudioAction.h"

namespace script {

struct PlayLocalSoundEffect : DefaultEffect {
  Argument entityList;
  Argument audioFile;
  bool loop = false;
  bool waitForFinish = false;
};

static void read(PlayLocalSoundEffect& effect, ParameterReader& in) {
  effect.entityList = in.list(1, "no_list", "EntityList", "Entities that sound");
  effect.audioFile =
      in.of(ParameterRole::SOUND, 2, "no_file", "Audiofile", "Local asset name, like em5/audio/test/beep.ogg");
  effect.loop = in.flag(3, false, "Loop", "Plays again and again");
  effect.waitForFinish = in.flag(4, false, "waitForFinish", "The action lasts as long as the sound");
}

static void run(const PlayLocalSoundEffect& effect, ScenarioHandler& handler) {
  if (isLeftAt(effect.entityList.text(), "no_list", "PlayLocalSoundEffect::EntityList was not found")) return;
  const std::string audioFile = handler.ResolveString(effect.audioFile);
  if (isLeftAt(audioFile, "no_file", "PlayLocalSoundEffect::Audiofile was not found")) return;
  if (hints::isOn()) hintUnknownSound(audioFile);
  forEachEntity(handler, effect.entityList, [&](qsf::Entity& entity) {
    actionsOf(entity)
        .pushAction<em5::PlayAudioAction>(100, qsf::action::APPEND_TO_BACK)
        .init(audioFile, &entity, true, effect.loop, effect.waitForFinish, std::nullopt, false);
  });
}

EFFECT(PlayLocalSound, "Actions", "Plays a sound at the places of entities")

}
