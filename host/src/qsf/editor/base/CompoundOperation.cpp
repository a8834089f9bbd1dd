#include "qsf/editor/base/CompoundOperation.h"

namespace qsf::editor::base {

void CompoundOperation::pushBackOperation(std::unique_ptr<Operation> operation) {
  if (operation) mOperations.push_back(std::move(operation));
}

void CompoundOperation::addOperationData(std::unique_ptr<OperationData> data) { mData.push_back(std::move(data)); }

bool CompoundOperation::redo() {
  for (std::size_t i = 0; i < mOperations.size(); ++i) {
    if (mOperations[i]->redo()) continue;
    while (i > 0)
      mOperations[--i]->undo();
    return false;
  }
  return true;
}

void CompoundOperation::undo() {
  for (auto operation = mOperations.rbegin(); operation != mOperations.rend(); ++operation)
    (*operation)->undo();
}

}
