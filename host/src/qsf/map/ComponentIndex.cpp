#include "qsf/map/ComponentIndex.h"

#include <iterator>

namespace qsf {

void ComponentIndex::add(Component& component) {
  Class& held = mClasses[component.getId()];
  const std::uint64_t id = component.getEntityId();
  // New entities have the highest ids, so most additions are at the end.
  const bool isLast = held.byEntity.empty() || held.byEntity.rbegin()->first < id;
  held.byEntity.emplace_hint(isLast ? held.byEntity.end() : held.byEntity.lower_bound(id), id, &component);
  if (!isLast)
    held.isUpToDate = false;
  else if (held.isUpToDate)
    held.list.push_back(&component);
}

bool ComponentIndex::remove(const Component& component) {
  const auto found = mClasses.find(component.getId());
  if (found == mClasses.end()) return false;
  Class& held = found->second;
  // What a script makes it soon destroys, so the last one is looked at first.
  const bool isLast = !held.byEntity.empty() && held.byEntity.rbegin()->second == &component;
  const auto place = isLast ? std::prev(held.byEntity.end()) : held.byEntity.find(component.getEntityId());
  if (place == held.byEntity.end() || place->second != &component) return false;
  held.byEntity.erase(place);
  if (held.isUpToDate && held.list.back() == &component)
    held.list.pop_back();
  else
    held.isUpToDate = false;
  return true;
}

const std::vector<Component*>& ComponentIndex::get(StringHash componentId) {
  static const std::vector<Component*> NONE;
  const auto found = mClasses.find(componentId);
  if (found == mClasses.end()) return NONE;
  Class& held = found->second;
  if (!held.isUpToDate) {
    held.list.clear();
    for (const auto& [id, component] : held.byEntity)
      held.list.push_back(component);
    held.isUpToDate = true;
  }
  return held.list;
}

}
