#include "em5/game/Game.h"

#include "em5/map/MiniMapIconRegistrationLogic.h"
#include "em5/order/OrderInfoManager.h"
#include "qsf/Qsf.h"
#include "qsf/job/JobManagers.h"

namespace em5 {

Game::Game()
    : mOrderInfoManager(std::make_unique<OrderInfoManager>()),
      mMiniMapIconRegistrationLogic(std::make_unique<MiniMapIconRegistrationLogic>()) {}

Game::~Game() = default;

void Game::setPaused(bool paused) { qsf::Qsf::instance()->getJobManagers().setPaused(paused); }

bool Game::isPaused() const { return qsf::Qsf::instance()->getJobManagers().isPaused(); }

}
