#pragma once
#include "game_plugin/tooling/Tooling.h"

namespace tidemark {

/// The module loaded for its lifetime, for what it tells of itself and of a host that has it as a plug-in. Its tooling
/// is there before any host, so that nothing of the load of scripts escapes it. Throws std::runtime_error if it can't
/// be loaded. Outlives the host session that uses it.
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
