#pragma once
#include "qsf/component/Component.h"

#include <string>
#include <vector>

namespace em5 {

/// Where units come from that players order. Properties "List" (names of the order infos that it has), "Disabled".
class QSF_API UnitSpawnPointComponent : public qsf::Component {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMPONENT_ID{"em5::UnitSpawnPointComponent"};
  explicit UnitSpawnPointComponent(qsf::Prototype* prototype) : Component(prototype) {}
  static void declareCamp();

  /// Nothing comes from here at present.
  virtual bool isDisabled() const { return mDisabled; }
  void setDisabled(bool disabled) { mDisabled = disabled; }
  const std::vector<std::string>& getList() const { return mList; }

private:
  std::vector<std::string> mList;
  bool mDisabled = false;
};

}
CAMP_TYPE_NONCOPYABLE(em5::UnitSpawnPointComponent)
