#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/StringHash.h"

#include <string>

namespace qsf {
class Component;
}

namespace script {

/// Waits until a reflected property of its entity has a value. Doesn't start, with an error in the log, if the entity
/// has no such component or the component no such property that reads as text. A component that goes meanwhile is
/// waited for.
class WaitUntilPropertyIsValue : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"script::WaitUntilPropertyIsValue"};
  static void declareCamp();

  /// Component and property by the hash of their names; the value as the reflection's own text of it, compared exactly:
  /// a number 5 is "5" and never "5.0".
  void init(qsf::StringHash componentId, qsf::StringHash propertyId, const std::string& value);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  qsf::Component* findComponent() const;

  qsf::StringHash mComponentId;
  qsf::StringHash mPropertyId;
  std::string mValue;
};

}
CAMP_TYPE_NONCOPYABLE(script::WaitUntilPropertyIsValue)
