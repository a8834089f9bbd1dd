#pragma once
#include "qsf/base/UniqueInstance.h"

#include <string>

namespace qsf {

/// What lies outside of the game on the player's machine. Owned by Qsf.
class QSF_API PlatformSystem : public UniqueInstanceTarget<PlatformSystem> {
public:
  PlatformSystem() = default;
  /// Asks for an address to be shown in the player's browser. It is noted in the call recorder and never opened: it
  /// comes from a script.
  void openUrlExternal(const std::string& url);
};

}
