#pragma once
#include "qsf/selection/SelectionManagerTemplate.h"

#include <cstdint>

namespace em5 {

/// The player's selection of units. Emits em5::Messages::EM5_CHANGE_SELECTION once per operation that changes it. Ids
/// of entities that are gone leave the selection between frames.
class QSF_API SelectionManager : public qsf::SelectionManagerTemplate<std::uint64_t> {
public:
  /// Drops ids without an entity; called by the host between frames.
  void dropMissingEntities();

protected:
  void onSelectionChanged() override;
};

}
