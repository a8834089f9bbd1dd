#include "em5/plugin/Plugin.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/multiplayer/NetworkManager.h"

namespace em5 {

namespace {
Plugin* sInstance = nullptr;
}

Plugin::Plugin()
    : mFreeplaySystem(std::make_unique<FreeplaySystem>()), mNetworkManager(std::make_unique<NetworkManager>()) {
  sInstance = this;
}

Plugin::~Plugin() {
  if (sInstance == this) sInstance = nullptr;
}

Plugin* Plugin::getInstance() { return sInstance; }

std::string PluginVersion::getText() const { return "1.0"; }

}
