#pragma once
#include "qsf/component/Component.h"

namespace qsf {

/// What an entity is called and which prefab it came from. Properties "Name", "Description", "BasePrefab".
class QSF_API MetadataComponent : public Component {
  CAMP_RTTI()
public:
  static constexpr StringHash COMPONENT_ID{"qsf::MetadataComponent"};
  explicit MetadataComponent(Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  const std::string& getName() const { return mName; }
  void setName(const std::string& name) { mName = name; }
  const std::string& getDescription() const { return mDescription; }
  void setDescription(const std::string& description) { mDescription = description; }
  /// Local asset id of the prefab; uninitialised for an entity that came from none.
  StringHash getBasePrefab() const { return mBasePrefab; }
  void setBasePrefab(StringHash localAssetId) { mBasePrefab = localAssetId; }

private:
  std::string mName;
  std::string mDescription;
  StringHash mBasePrefab;
};

}
CAMP_TYPE_NONCOPYABLE(qsf::MetadataComponent)
