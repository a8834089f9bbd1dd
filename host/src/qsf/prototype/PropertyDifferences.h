#pragma once
#include "qsf/component/Component.h"

#include <camp/property.hpp>
#include <camp/value.hpp>

#include <vector>

namespace qsf {

/// What makes a fresh component equal to another of its class: the values of the properties in which they differ.
/// Worked out once and applied often, it spares a prefab's copies the many properties that nobody set.
class PropertyDifferences {
public:
  explicit PropertyDifferences(const Component& source);
  /// The target is a fresh component of the source's class.
  void applyTo(Component& target) const;

private:
  struct Change {
    const camp::Property* property;
    std::vector<camp::Value> values; ///< of an array its elements, else the one value
  };
  void note(const camp::UserObject& source, const camp::Property& property);
  std::vector<Change> mChanges;
};

}
