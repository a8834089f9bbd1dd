#include "game_plugin/action/WaitUntilPropertyIsValue.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/Reflection.h"

#include "qsf/reflection/PropertyText.h"

#include <exception>

namespace script {

void WaitUntilPropertyIsValue::declareCamp() {
  // Kept: the tags are those of another action.
  camp::Class::declare<WaitUntilPropertyIsValue>("script::WaitUntilPropertyIsValue")
      .tag("Name", "script::UseEquipmentAction")
      .tag("Description", "script::UseEquipmentAction")
      .base<Action>()
      .constructor0();
}

void WaitUntilPropertyIsValue::init(qsf::StringHash componentId, qsf::StringHash propertyId, const std::string& value) {
  mComponentId = componentId;
  mPropertyId = propertyId;
  mValue = value;
}

qsf::action::Description WaitUntilPropertyIsValue::describe() const {
  return {{"component", qsf::toText(mComponentId)}, {"property", qsf::toText(mPropertyId)}, {"value", mValue}};
}

qsf::Component* WaitUntilPropertyIsValue::findComponent() const { return getEntity().getComponentById(mComponentId); }

bool WaitUntilPropertyIsValue::onStartup() {
  qsf::Component* component = findComponent();
  if (!component) {
    logError("WaitUntilPropertyIsValue has been aborted because the component does not exist");
    return false;
  }
  try {
    readAsText(*component, mPropertyId);
    return true;
  } catch (const std::exception&) {
    logError("WaitUntilPropertyIsValue has been aborted because the property does not exist");
    return false;
  }
}

qsf::action::Result WaitUntilPropertyIsValue::updateAction(const qsf::Clock&) {
  try {
    qsf::Component* component = findComponent();
    if (component && readAsText(*component, mPropertyId) == mValue) return qsf::action::RESULT_DONE;
  } catch (const std::exception&) { // a value that can't be read just now is waited for
  }
  return qsf::action::RESULT_CONTINUE;
}

}
