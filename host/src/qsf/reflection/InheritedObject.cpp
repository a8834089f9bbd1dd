#include "qsf/reflection/InheritedObject.h"

#include <camp/property.hpp>

namespace qsf {

namespace {

bool hasProperty(const camp::Class& metaclass, StringHash propertyId) {
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    if (StringHash(metaclass.property(i).name()) == propertyId) return true;
  return false;
}

}

InheritedObject::PropertyOverrideState InheritedObject::getPropertyOverrideState(StringHash propertyId) const {
  if (!mOverrides) return INHERITED;
  const auto found = mOverrides->find(propertyId.getHash());
  return found == mOverrides->end() ? INHERITED : found->second;
}

void InheritedObject::setPropertyOverrideState(StringHash propertyId, PropertyOverrideState state) {
  if (!hasProperty(getCampClass(), propertyId)) return;
  if (!mOverrides) mOverrides = std::make_unique<std::map<std::uint32_t, PropertyOverrideState>>();
  if (state == INHERITED)
    mOverrides->erase(propertyId.getHash());
  else
    (*mOverrides)[propertyId.getHash()] = state;
}

void InheritedObject::setAllPropertyOverrideFlags(bool overridden) {
  const camp::Class& metaclass = getCampClass();
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    setPropertyOverrideState(StringHash(metaclass.property(i).name()), overridden ? OVERRIDDEN : INHERITED);
}

}
