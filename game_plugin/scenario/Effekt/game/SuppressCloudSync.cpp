#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/application/Application.h"

namespace script {

struct SuppressCloudSyncEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "Nothing lets saved games be synchronised again before the game is left.",
  };
};

static void read(SuppressCloudSyncEffect&, ParameterReader&) {}

static void run(const SuppressCloudSyncEffect&, ScenarioHandler&) {
  if (const qsf::UniqueInstance<em5::Application> application; application)
    application->getAccountManager().setCloudSyncPaused(true);
}

EFFECT(SuppressCloudSync, "Gui", "Keeps saved games from being synchronised with the cloud")

}
