#include "qsf/prototype/PropertyDifferences.h"

#include "qsf/prototype/PrototypeManager.h"
#include "qsf/reflection/PropertyText.h"

#include <camp/arrayproperty.hpp>
#include <camp/class.hpp>

namespace qsf {

namespace {

bool isCopied(const camp::UserObject& object, const camp::Property& property) {
  if (property.type() == camp::userType || !property.readable(object)) return false;
  return property.type() == camp::arrayType || property.writable(object);
}

bool areEqual(const camp::UserObject& left, const camp::UserObject& right, const camp::Property& property) {
  return getPropertyText(left, property) == getPropertyText(right, property);
}

/// A fresh component of the same class in a prefab of its own.
class Scratch {
public:
  explicit Scratch(const Component& source)
      : mPrefab(UNINITIALIZED_STRING_HASH, ""), mComponent(*mPrefab.getOrCreateComponentById(source.getId())) {}
  Component& getComponent() { return mComponent; }

private:
  Prefab mPrefab;
  Component& mComponent;
};

}

PropertyDifferences::PropertyDifferences(const Component& component) {
  const camp::UserObject source(component);
  const camp::Class& metaclass = source.getClass();
  Scratch fresh(component);
  const camp::UserObject untouched(fresh.getComponent());
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    if (const camp::Property& property = metaclass.property(i);
        isCopied(source, property) && !areEqual(source, untouched, property))
      note(source, property);

  // A setter may change other properties. If the differences alone don't lead to the source, all properties are set.
  Scratch attempt(component);
  applyTo(attempt.getComponent());
  const camp::UserObject copy(attempt.getComponent());
  bool isEqual = true;
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    isEqual = isEqual && (!isCopied(source, metaclass.property(i)) || areEqual(source, copy, metaclass.property(i)));
  if (isEqual) return;
  mChanges.clear();
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    if (isCopied(source, metaclass.property(i))) note(source, metaclass.property(i));
}

void PropertyDifferences::note(const camp::UserObject& source, const camp::Property& property) {
  Change change{&property, {}};
  if (property.type() == camp::arrayType) {
    const auto& array = static_cast<const camp::ArrayProperty&>(property);
    for (std::size_t i = 0; i < array.size(source); ++i)
      change.values.push_back(array.get(source, i));
  } else {
    change.values.push_back(property.get(source));
  }
  mChanges.push_back(std::move(change));
}

void PropertyDifferences::applyTo(Component& component) const {
  if (mChanges.empty()) return;
  const camp::UserObject target(component);
  for (const Change& change : mChanges) {
    if (change.property->type() != camp::arrayType) {
      change.property->set(target, change.values.front());
      continue;
    }
    const auto& array = static_cast<const camp::ArrayProperty&>(*change.property);
    if (array.dynamic()) array.resize(target, change.values.size());
    for (std::size_t i = 0; i < change.values.size(); ++i)
      array.set(target, i, change.values[i]);
  }
}

}
