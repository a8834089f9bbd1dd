#include "qsf/renderer/MaterialVariationManager.h"

#include "qsf/base/RecordedOperation.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/PropertyText.h"

namespace qsf {

static const RecordedOperation setValueCall{"qsf::MaterialVariationManager::setEntityMaterialPropertyValue",
                                            "entity, property, value, slot (4294967295: all)"};

namespace {

/// Names of material properties, of which callers have the hash.
std::string nameOf(StringHash property) {
  for (const char* name : {"UseUvScrolling", "UvOffsetU", "UvOffsetV"})
    if (StringHash(name) == property) return name;
  return toText(property);
}

}

std::string MaterialPropertyValue::getText() const {
  if (const bool* flag = std::get_if<bool>(&mValue)) return *flag ? "1" : "0";
  return toText(static_cast<double>(std::get<float>(mValue)));
}

void MaterialVariationManager::setEntityMaterialPropertyValue(const Entity& entity, StringHash property,
                                                              const MaterialPropertyValue& value,
                                                              std::uint32_t materialSlot) {
  setValueCall.record(
      {std::to_string(entity.getId()), nameOf(property), value.getText(), std::to_string(materialSlot)});
}

}
