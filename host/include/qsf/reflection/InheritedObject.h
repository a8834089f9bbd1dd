#pragma once
#include "qsf/base/StringHash.h"
#include "qsf/reflection/Object.h"

#include <cstdint>
#include <map>
#include <memory>

namespace qsf {

/// An object whose values may come from a prefab. For each property it remembers whether the value is the object's own,
/// which the editor keeps when the prefab is changed.
class QSF_API InheritedObject : public Object {
public:
  enum PropertyOverrideState {
    INHERITED = 0, ///< follows the prefab; the state of all properties at first
    OVERRIDDEN = 2 ///< the object's own value
  };

  /// By the hash of the property's name. A property that isn't there is inherited.
  virtual PropertyOverrideState getPropertyOverrideState(StringHash propertyId) const;
  /// The value itself stays. A property that isn't there does nothing.
  virtual void setPropertyOverrideState(StringHash propertyId, PropertyOverrideState state);
  /// Sets all properties, those of base classes among them.
  void setAllPropertyOverrideFlags(bool overridden);

private:
  /// Those that aren't inherited; most objects have none.
  std::unique_ptr<std::map<std::uint32_t, PropertyOverrideState>> mOverrides;
};

}
