#pragma once
#include "qsf/selection/SelectionManagerTemplate.h"

#include <cstdint>

namespace em5 {

/// The player's selection of units. Emits em5::Messages::EM5_CHANGE_SELECTION once per operation that changes it. Ids
/// of entities that are gone leave the selection between frames.
class QSF_API SelectionManager : public qsf::SelectionManagerTemplate<std::uint64_t> {
public:
  /// Called by the host between frames.
  void dropDestroyedEntities();

protected:
  void onSelectionChanged() override;

private:
  IdSet mSeenAlive;
};

}
