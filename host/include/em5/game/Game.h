#pragma once
#include "em5/game/PlayerManager.h"
#include "em5/game/SelectionManager.h"
#include "qsf/base/UniqueInstance.h"

#include <memory>

namespace em5 {

class MiniMapIconRegistrationLogic;
class OrderInfoManager;

/// What is played. A game program has one from its setup on, renewed when a map ends; the editor has none.
class QSF_API Game : public qsf::UniqueInstanceTarget<Game> {
public:
  Game();
  ~Game();

  /// Never null; a pointer because scripts' code asks for it.
  PlayerManager* getPlayerManager() { return &mPlayerManager; }
  SelectionManager* getSelectionManager() { return &mSelectionManager; }
  OrderInfoManager& getOrderInfoManager() const { return *mOrderInfoManager; }
  MiniMapIconRegistrationLogic& getMiniMapIconRegistrationLogic() const { return *mMiniMapIconRegistrationLogic; }

  /// A paused game rests its simulation from the next frame on; GUI and message-driven work go on.
  void setPaused(bool paused);
  bool isPaused() const;

private:
  PlayerManager mPlayerManager;
  SelectionManager mSelectionManager;
  std::unique_ptr<OrderInfoManager> mOrderInfoManager;
  std::unique_ptr<MiniMapIconRegistrationLogic> mMiniMapIconRegistrationLogic;
};

}
