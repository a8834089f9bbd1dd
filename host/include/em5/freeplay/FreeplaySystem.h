#pragma once
#include "em5/freeplay/FreeplayEventFactory.h"
#include "em5/freeplay/FreeplayEventManager.h"
#include "em5/freeplay/FreeplayEventTriggerInfo.h"
#include "em5/freeplay/FreeplayGameMode.h"
#include "qsf/job/JobProxy.h"

#include <map>
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
  /// definition, if its file is malformed or names what isn't there (logged with its place), and if its factory
  /// refuses.
  FreeplayEvent* triggerEventByPath(const FreeplayEventTriggerInfo& triggerInfo, const std::string& definition);
  /// The same as a pool does it, for an entry with these properties: the player is told of the start. Throws
  /// std::runtime_error for what triggerEventByPath logs; null if the factory refuses.
  FreeplayEvent* triggerPoolEvent(const std::string& definition, const EventProperties& properties = {});
  /// The factory of a definition in this game. Null if nobody has asked for an event of it.
  const FreeplayEventFactory* findFactory(const std::string& definition) const;

  FreeplayEventManager& getEventManager() { return mEventManager; }
  FreeplayGameMode& getGameMode() { return mGameMode; }

  /// For the host session: the course of a game. Stopping ends all events and forgets pools and factories.
  void startGame();
  void stopGame();
  bool isGameRunning() const { return mGameRunning; }

private:
  struct EventPool;
  FreeplayEvent* trigger(const FreeplayEventTriggerInfo& triggerInfo, const std::string& definition);
  FreeplayEventFactory& getFactory(const std::string& definition);
  void update(const qsf::JobArguments& arguments);
  void updatePool(EventPool& pool, qsf::Time timePassed);

  FreeplayEventManager mEventManager;
  FreeplayGameMode mGameMode;
  std::map<std::string, std::unique_ptr<FreeplayEventFactory>> mFactories; ///< by the definition's local asset name
  std::vector<std::unique_ptr<EventPool>> mPools;
  qsf::JobProxy mUpdateJobProxy;
  bool mGameRunning = false;
};

}
