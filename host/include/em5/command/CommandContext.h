#pragma once
#include "qsf/Export.h"

namespace qsf {
class Entity;
}

namespace em5 {

/// Who does what to whom when a command is about to be executed. Lives for the call that carries it.
struct QSF_API CommandContext {
  qsf::Entity* mCaller = nullptr;
  qsf::Entity* mTargetEntity = nullptr;
  /// The unit minds smoke; false for orders that are given regardless of it.
  bool mConsiderSmoke = true;
};

}
