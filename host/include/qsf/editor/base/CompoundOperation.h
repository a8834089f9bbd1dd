#pragma once
#include "qsf/editor/base/Operation.h"
#include "qsf/editor/base/OperationData.h"

#include <memory>
#include <vector>

namespace qsf::editor::base {

/// One step for the user that consists of others. Owns them and their data.
class QSF_API CompoundOperation : public Operation {
public:
  CompoundOperation() = default;

  /// The operations are carried out in the order of their adding, and taken back in the reverse one.
  void pushBackOperation(std::unique_ptr<Operation> operation);
  /// Data live as long as the compound.
  void addOperationData(std::unique_ptr<OperationData> data);
  const std::vector<std::unique_ptr<Operation>>& getOperations() const { return mOperations; }

  /// All or nothing: if one can't be carried out, those before it are taken back.
  bool redo() override;
  void undo() override;

private:
  std::vector<std::unique_ptr<OperationData>> mData; // the operations refer to it, so it goes last
  std::vector<std::unique_ptr<Operation>> mOperations;
};

}
