#pragma once
#include "em5/plugin/ModSystem.h"
#include "em5/plugin/PluginVersion.h"
#include "qsf/game/AchievementSystem.h"

#include <memory>

namespace em5 {

class FreeplaySystem;
class NetworkManager;

/// The game's systems that outlive a single game. Owned by the host session; there from the host's start to its end.
class QSF_API Plugin {
public:
  Plugin();
  ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  /// Null while no host runs.
  static Plugin* getInstance();

  ModSystem& getModSystem() { return mModSystem; }
  FreeplaySystem& getFreeplaySystem() const { return *mFreeplaySystem; }
  NetworkManager& getNetworkManager() const { return *mNetworkManager; }
  qsf::game::AchievementSystem& getAchievementSystem() { return mAchievementSystem; }

private:
  ModSystem mModSystem;
  std::unique_ptr<FreeplaySystem> mFreeplaySystem;
  std::unique_ptr<NetworkManager> mNetworkManager;
  qsf::game::AchievementSystem mAchievementSystem;
};

}
