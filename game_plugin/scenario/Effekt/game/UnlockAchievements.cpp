#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/plugin/Plugin.h"

namespace script {

struct UnlockAchievementsEffect : DefaultEffect {
  bool removeLock = true;
  bool tellSteam = false;
};

static void read(UnlockAchievementsEffect& effect, ParameterReader& in) {
  effect.removeLock = in.flag(1, true, "remove lock", "true lets achievements be won, false locks them");
  effect.tellSteam = in.flag(2, false, "Tell Steam about progress", "true tells Steam of all achievements");
}

static void run(const UnlockAchievementsEffect& effect, ScenarioHandler&) {
  em5::Plugin* game = em5::Plugin::getInstance();
  if (!game) return;
  qsf::game::AchievementSystem& achievements = game->getAchievementSystem();
  achievements.setWriteLock(!effect.removeLock);
  if (!effect.tellSteam) return;
  logInfo("tell steam api ");
  if (achievements.getSteamApiRuntimeLinking()) achievements.tellSteamAboutAllAchievements();
}

EFFECT(UnlockAchievements, "General", "Lets achievements be won, or locks them")

}
