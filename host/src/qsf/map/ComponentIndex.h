#pragma once
#include "qsf/component/Component.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace qsf {

/// The components of a map by class, each class by ascending entity id. Changes cost the logarithm of a class's size;
/// the list of a class is made again when it is asked for after a change in its middle, so that a script which destroys
/// or equips thousands of entities at once pays for one list, not for thousands.
class ComponentIndex {
public:
  void add(Component& component);
  /// False if the component isn't held.
  bool remove(const Component& component);
  /// The reference holds until a component of that class is added or removed.
  const std::vector<Component*>& get(StringHash componentId);
  void clear() { mClasses.clear(); }

private:
  struct Class {
    std::map<std::uint64_t, Component*> byEntity;
    std::vector<Component*> list; ///< the same, while it is up to date
    bool isUpToDate = true;
  };
  std::unordered_map<StringHash, Class> mClasses;
};

}
