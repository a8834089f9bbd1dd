#include "em5/freeplay/ObjectiveList.h"

#include "em5/freeplay/EventArchive.h"

#include <algorithm>

namespace em5 {

Objective& ObjectiveList::getOrCreateObjective(qsf::StringHash typeId, ObjectiveType type, std::uint64_t eventId,
                                               int orderPriority) {
  if (Objective* objective = getObjectiveByTypeId(typeId)) return *objective;
  return *mObjectives.emplace_back(std::make_unique<Objective>(typeId, type, eventId, orderPriority));
}

Objective* ObjectiveList::getObjectiveByTypeId(qsf::StringHash typeId) const {
  const auto found =
      std::ranges::find_if(mObjectives, [&](const auto& objective) { return objective->getTypeId() == typeId; });
  return found == mObjectives.end() ? nullptr : found->get();
}

void ObjectiveList::removeObjectiveByTypeId(qsf::StringHash typeId) {
  std::erase_if(mObjectives, [&](const auto& objective) { return objective->getTypeId() == typeId; });
}

void ObjectiveList::serialize(EventArchive& archive) {
  if (archive.isReading()) mObjectives.clear();
  archive.elements("objectives", mObjectives.size(), [&](std::size_t index, EventArchive& element) {
    if (archive.isReading()) mObjectives.push_back(std::make_unique<Objective>());
    mObjectives[index]->serialize(element);
  });
}

}
