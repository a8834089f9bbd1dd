#include "apps/tidemark/session/ModuleAccess.h"

#include "apps/tidemark/platform/Platform.h"
#include "apps/tidemark/session/Installation.h"

#include <fmt/format.h>

#include <stdexcept>

namespace tidemark {

namespace {

script::tooling::Tooling& askForTooling() {
  const auto function = reinterpret_cast<script::tooling::GetToolingFunction>(
      platform::findSymbol(modulePath(), script::tooling::GET_TOOLING_SYMBOL));
  script::tooling::Tooling* tooling = function ? function() : nullptr;
  if (!tooling)
    throw std::runtime_error(fmt::format("{} offers no {}", modulePath(), script::tooling::GET_TOOLING_SYMBOL));
  return *tooling;
}

}

LoadedModule::LoadedModule() : mLibrary(platform::loadLibrary(modulePath())), mTooling(nullptr) {
  try {
    mTooling = &askForTooling();
    mTooling->setPlayerLogFolder(""); // an installation isn't written to
  } catch (...) {
    platform::unloadLibrary(mLibrary);
    throw;
  }
}

LoadedModule::~LoadedModule() { platform::unloadLibrary(mLibrary); }

}
