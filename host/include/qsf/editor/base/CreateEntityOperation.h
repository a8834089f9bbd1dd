#pragma once
#include "qsf/editor/base/Operation.h"

#include <cstdint>

namespace qsf::editor::base {

class BackupPrototypeOperationData;

/// Puts an entity on the main map, and takes it off again.
class QSF_API CreateEntityOperation : public Operation {
public:
  /// The entity gets the prototype's id, belongs to that layer and is made of the backup, which has to outlive the
  /// operation. It is there at once, also if the layer is inactive.
  CreateEntityOperation(std::uint64_t prototypeId, std::uint32_t layerId, const BackupPrototypeOperationData& backup);

  /// False if the id is taken.
  bool redo() override;
  /// Destroys the entity, wherever it is by now; an entity that is gone already is left at that.
  void undo() override;

  std::uint64_t getEntityId() const { return mEntityId; }
  std::uint32_t getLayerId() const { return mLayerId; }

private:
  std::uint64_t mEntityId;
  std::uint32_t mLayerId;
  const BackupPrototypeOperationData& mBackup;
};

}
