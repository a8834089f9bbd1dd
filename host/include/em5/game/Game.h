#pragma once
#include "em5/game/PlayerManager.h"
#include "em5/game/SelectionManager.h"
#include "qsf/base/UniqueInstance.h"

#include <memory>

namespace em5 {

class OrderInfoManager;

/// A game in progress. Made when a game starts on a map, destroyed when it has shut down; never there in the editor.
class QSF_API Game : public qsf::UniqueInstanceTarget<Game> {
public:
  Game();
  ~Game();

  /// Never null; a pointer because scripts' code asks for it.
  PlayerManager* getPlayerManager() { return &mPlayerManager; }
  SelectionManager* getSelectionManager() { return &mSelectionManager; }
  OrderInfoManager& getOrderInfoManager() const { return *mOrderInfoManager; }

  /// A paused game rests its simulation from the next frame on; GUI and message-driven work go on.
  void setPaused(bool paused);
  bool isPaused() const;

private:
  PlayerManager mPlayerManager;
  SelectionManager mSelectionManager;
  std::unique_ptr<OrderInfoManager> mOrderInfoManager;
};

}
