#pragma once
#include "qsf/editor/base/Operation.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace qsf::editor::base {

/// The steps of an editing session, in their order: those that stand, which can be undone, and behind them those that
/// were undone and can be redone. They are forgotten when the session's map goes.
class QSF_API OperationManager {
public:
  OperationManager() = default;
  virtual ~OperationManager() = default;
  OperationManager(const OperationManager&) = delete;
  OperationManager& operator=(const OperationManager&) = delete;

  /// A new step, which the manager owns from then on; steps that were undone can't be redone any more. `redo` carries
  /// the operation out first: if that fails, it is dropped and nothing has changed. Without it the operation has been
  /// carried out already. False if it was dropped.
  virtual bool push(std::unique_ptr<Operation> operation, bool redo);
  /// Takes the last step back. False if there is none.
  virtual bool undo();
  /// Carries the step that was undone last out again. False if there is none, or if it can't be carried out any more;
  /// that is logged, and the step can be tried again.
  virtual bool redo();
  void clear();

  std::size_t getNumberOfUndoSteps() const { return mNumberDone; }
  std::size_t getNumberOfRedoSteps() const { return mSteps.size() - mNumberDone; }
  /// The steps that stand, then those that were undone, the last undone first.
  const std::vector<std::unique_ptr<Operation>>& getSteps() const { return mSteps; }

private:
  std::vector<std::unique_ptr<Operation>> mSteps;
  std::size_t mNumberDone = 0;
};

}
