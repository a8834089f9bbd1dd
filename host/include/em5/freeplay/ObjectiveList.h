#pragma once
#include "em5/freeplay/Objective.h"

#include <memory>
#include <vector>

namespace em5 {

/// The objectives of an event, in the order in which they were made. A part of the event.
class QSF_API ObjectiveList {
public:
  ObjectiveList() = default;
  ObjectiveList(const ObjectiveList&) = delete;
  ObjectiveList& operator=(const ObjectiveList&) = delete;

  /// One that is there keeps its kind. A new one has no text and both numbers 0.
  Objective& getOrCreateObjective(qsf::StringHash typeId, ObjectiveType type, std::uint64_t eventId,
                                  int orderPriority = 100);
  /// Null if there is none.
  Objective* getObjectiveByTypeId(qsf::StringHash typeId) const;
  /// One that isn't there does nothing.
  void removeObjectiveByTypeId(qsf::StringHash typeId);
  const std::vector<std::unique_ptr<Objective>>& getObjectives() const { return mObjectives; }

  void serialize(EventArchive& archive);

private:
  std::vector<std::unique_ptr<Objective>> mObjectives;
};

}
