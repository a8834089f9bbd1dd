#pragma once
#include "qsf/editor/base/OperationData.h"

#include <memory>
#include <string>

namespace qsf {
class Prototype;
}

namespace qsf::editor::base {

/// What it takes to make a prototype again as it was when this was made: its components, the values of their properties
/// and which of them are its own.
class QSF_API BackupPrototypeOperationData : public OperationData {
public:
  explicit BackupPrototypeOperationData(const Prototype& prototype);
  ~BackupPrototypeOperationData() override;

  /// Gives the components to a prototype that has none; they aren't started.
  void restore(Prototype& prototype) const;
  /// From the metadata; empty without it.
  const std::string& getName() const { return mName; }

private:
  struct Part;
  struct Parts;
  std::unique_ptr<Parts> mParts;
  std::string mName;
};

}
