#pragma once
#include "qsf/base/Ids.h"
#include "qsf/base/StringHash.h"

#include <cstdint>
#include <variant>

namespace qsf {

class Entity;

/// A value of a material: a switch or a number.
class QSF_API MaterialPropertyValue {
public:
  static MaterialPropertyValue fromBoolean(bool value) { return MaterialPropertyValue(value); }
  static MaterialPropertyValue fromFloat(float value) { return MaterialPropertyValue(value); }
  /// "0", "1", or the number in the fewest plain decimals.
  std::string getText() const;

private:
  using Value = std::variant<bool, float>;
  explicit MaterialPropertyValue(Value value) : mValue(value) {}

  Value mValue;
};

/// Gives single entities materials that differ from those of their kind. Nothing is drawn headless: each call is noted
/// in the call recorder.
class QSF_API MaterialVariationManager {
public:
  /// Sets a property of the entity's materials, like "UseUvScrolling" or "UvOffsetU" (0 to 1). The uninitialised slot
  /// means all of them.
  static void setEntityMaterialPropertyValue(const Entity& entity, StringHash property,
                                             const MaterialPropertyValue& value,
                                             std::uint32_t materialSlot = getUninitialized<std::uint32_t>());
};

}
