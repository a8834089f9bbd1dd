#pragma once
#include "qsf/Export.h"

namespace qsf::editor::base {

/// What operations of a compound need to know and share. Owned by the compound.
class QSF_API OperationData {
public:
  OperationData() = default;
  virtual ~OperationData() = default;
  OperationData(const OperationData&) = delete;
  OperationData& operator=(const OperationData&) = delete;
};

}
