#include "qsf/editor/base/BackupPrototypeOperationData.h"

#include "qsf/component/MetadataComponent.h"
#include "qsf/prototype/PropertyDifferences.h"
#include "qsf/reflection/ClassRegistry.h"

#include <camp/class.hpp>

namespace qsf::editor::base {

namespace {

std::vector<StringHash> overriddenPropertiesOf(const Component& component) {
  std::vector<StringHash> ids;
  const camp::Class& metaclass = component.getCampClass();
  for (std::size_t i = 0; i < metaclass.propertyCount(); ++i)
    if (const StringHash id(metaclass.property(i).name());
        component.getPropertyOverrideState(id) == InheritedObject::OVERRIDDEN)
      ids.push_back(id);
  return ids;
}

}

struct BackupPrototypeOperationData::Part {
  explicit Part(const Component& component)
      : componentId(component.getId()), values(component), overridden(overriddenPropertiesOf(component)) {}

  StringHash componentId;
  PropertyDifferences values;
  std::vector<StringHash> overridden;
};

struct BackupPrototypeOperationData::Parts {
  std::vector<Part> list;
};

BackupPrototypeOperationData::BackupPrototypeOperationData(const Prototype& prototype)
    : mParts(std::make_unique<Parts>()) {
  for (const Component* component : prototype.getComponents())
    mParts->list.emplace_back(*component);
  if (const auto* metadata = prototype.getComponent<MetadataComponent>()) mName = metadata->getName();
}

BackupPrototypeOperationData::~BackupPrototypeOperationData() = default;

void BackupPrototypeOperationData::restore(Prototype& prototype) const {
  // All components first: the setters of one may look for another.
  for (const Part& part : mParts->list)
    prototype.getOrCreateComponentById(part.componentId, false);
  for (const Part& part : mParts->list) {
    Component* component = prototype.getComponentById(part.componentId);
    if (!component) continue; // its plug-in has gone
    part.values.applyTo(*component);
    for (const StringHash property : part.overridden)
      component->setPropertyOverrideState(property, InheritedObject::OVERRIDDEN);
  }
}

}
