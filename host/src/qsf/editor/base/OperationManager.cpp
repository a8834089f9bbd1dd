#include "qsf/editor/base/OperationManager.h"

#include "qsf/log/LogSystem.h"

namespace qsf::editor::base {

bool OperationManager::push(std::unique_ptr<Operation> operation, bool redo) {
  if (!operation || (redo && !operation->redo())) return false;
  mSteps.resize(mNumberDone);
  mSteps.push_back(std::move(operation));
  ++mNumberDone;
  return true;
}

bool OperationManager::undo() {
  if (mNumberDone == 0) return false;
  mSteps[--mNumberDone]->undo();
  return true;
}

bool OperationManager::redo() {
  if (mNumberDone == mSteps.size()) return false;
  if (!mSteps[mNumberDone]->redo()) {
    logMessage(LogSystem::WARNING, "The step \"" + mSteps[mNumberDone]->getText() + "\" cannot be redone");
    return false;
  }
  ++mNumberDone;
  return true;
}

void OperationManager::clear() {
  mSteps.clear();
  mNumberDone = 0;
}

}
