#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

#include <string>

namespace script {

/// Sets a reflected property of an entity, when its turn has come. Ends without a word if the entity or its component
/// is gone; a property that isn't there or doesn't take the value is logged.
class SetCampPropertyAction : public qsf::Action {
  CAMP_RTTI()
public:
  /// Plans, and scripts that start or remove actions, know it by another name than that of the class.
  static constexpr const char* ACTION_NAME = "move::SetCampPropertyAction";
  static constexpr qsf::StringHash ACTION_ID{ACTION_NAME};
  static void declareCamp();

  /// The entity may be another one than the one that acts. The text is converted by the reflection.
  void init(std::uint64_t entityId, const std::string& component, const std::string& property,
            const std::string& value);
  qsf::StringHash getTypeId() const override { return ACTION_ID; }
  qsf::action::Description describe() const override;

protected:
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  std::uint64_t mEntityId = qsf::UNINITIALIZED_ID;
  std::string mComponent;
  std::string mProperty;
  std::string mValue;
};

}
CAMP_TYPE_NONCOPYABLE(script::SetCampPropertyAction)
