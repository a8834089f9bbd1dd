#pragma once
#include "qsf/editor/base/OperationManager.h"

namespace qsf::editor::base {

/// What every editor has: steps to undo and redo.
class QSF_API Application {
public:
  OperationManager& getOperationManager() { return mOperationManager; }

protected:
  Application() = default;
  ~Application() = default;

private:
  OperationManager mOperationManager;
};

}
