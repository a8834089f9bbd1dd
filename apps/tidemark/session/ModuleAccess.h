#pragma once
#include "game_plugin/tooling/Tooling.h"

namespace tidemark {

/// What the loaded module shows to tools. Valid until the host session ends. Throws std::runtime_error if the module
/// isn't loaded or doesn't offer it.
script::tooling::Tooling& findTooling();

/// The module loaded for its lifetime, without a host: for what it tells of itself. Throws std::runtime_error if it
/// can't be loaded.
class LoadedModule {
public:
  LoadedModule();
  ~LoadedModule();
  LoadedModule(const LoadedModule&) = delete;
  LoadedModule& operator=(const LoadedModule&) = delete;
  script::tooling::Tooling& tooling() const { return *mTooling; }

private:
  void* mLibrary;
  script::tooling::Tooling* mTooling;
};

}
