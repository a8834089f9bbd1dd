#pragma once
#include "em5/freeplay/FreeplayEventManager.h"
#include "em5/freeplay/FreeplayEventTriggerInfo.h"
#include "em5/freeplay/FreeplayGameMode.h"
#include "qsf/job/JobProxy.h"

#include <memory>
#include <string>
#include <vector>

namespace em5 {

/// Starts missions: by definition, and from event pools in the course of the game. Owned by the plug-in. Runs while a
/// game runs.
class QSF_API FreeplaySystem {
public:
  FreeplaySystem();
  ~FreeplaySystem();
  FreeplaySystem(const FreeplaySystem&) = delete;
  FreeplaySystem& operator=(const FreeplaySystem&) = delete;

  /// Adds the pool asset of that local name (type `em5_eventpool`). False, and nothing is added, if there is no such
  /// asset or if its file is malformed (which is logged with its place). A pool that is there already stays once: true.
  /// Pools work while a game runs.
  bool addEventPoolsByName(const std::string& localAssetName);
  std::vector<std::string> getEventPoolNames() const;

  /// Starts the event of a definition asset (type `em5_event`), named by its local asset name or by `<category>/<name>`
  /// alone, which takes the project mounted last that has it. Null without a running game, if there is no such
  /// definition or if its file is malformed (logged with its place).
  FreeplayEvent* triggerEventByPath(const FreeplayEventTriggerInfo& triggerInfo, const std::string& definition);

  FreeplayEventManager& getEventManager() { return mEventManager; }
  FreeplayGameMode& getGameMode() { return mGameMode; }

  /// For the host session: the course of a game. Stopping ends all events and forgets the pools.
  void startGame();
  void stopGame();
  bool isGameRunning() const { return mGameRunning; }

private:
  struct EventPool;
  void update(const qsf::JobArguments& arguments);
  void updatePool(EventPool& pool, qsf::Time timePassed);

  FreeplayEventManager mEventManager;
  FreeplayGameMode mGameMode;
  std::vector<std::unique_ptr<EventPool>> mPools;
  qsf::JobProxy mUpdateJobProxy;
  bool mGameRunning = false;
};

}
