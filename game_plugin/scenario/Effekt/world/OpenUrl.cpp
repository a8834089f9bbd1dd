#include "game_plugin/scenario/program/ParameterReader.h"

#include "qsf/platform/PlatformSystem.h"

namespace script {

struct OpenUrlEffect : DefaultEffect {
  Argument url;
};

static void read(OpenUrlEffect& effect, ParameterReader& in) {
  effect.url = in.raw(1, "Url", "Url", "Address of the page, as it stands; no variable");
}

static void run(const OpenUrlEffect& effect, ScenarioHandler& /*handler*/) {
  if (const qsf::UniqueInstance<qsf::PlatformSystem> platform; platform) platform->openUrlExternal(effect.url);
}

EFFECT(OpenUrl, "", "Opens a page in the player's browser")

}
