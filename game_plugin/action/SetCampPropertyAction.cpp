#include "game_plugin/action/SetCampPropertyAction.h"

#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/world/Reflection.h"

#include "qsf/map/Map.h"

#include <exception>

namespace script {

void SetCampPropertyAction::declareCamp() {
  // Kept: the tags are those of another action.
  camp::Class::declare<SetCampPropertyAction>("script::SetCampPropertyAction")
      .tag("Name", "script::UseEquipmentAction")
      .tag("Description", "script::UseEquipmentAction")
      .base<Action>()
      .constructor0();
}

void SetCampPropertyAction::init(std::uint64_t entityId, const std::string& component, const std::string& property,
                                 const std::string& value) {
  mEntityId = entityId;
  mComponent = component;
  mProperty = property;
  mValue = value;
}

qsf::action::Description SetCampPropertyAction::describe() const {
  return {{"target", std::to_string(mEntityId)}, {"component", mComponent}, {"property", mProperty}, {"value", mValue}};
}

qsf::action::Result SetCampPropertyAction::updateAction(const qsf::Clock&) {
  const qsf::Entity* entity = getMap().getEntityById(mEntityId);
  qsf::Component* component = entity ? findComponent(*entity, mComponent) : nullptr;
  if (!component) return qsf::action::RESULT_DONE;
  try {
    reflect(*component).set(mProperty, camp::Value(mValue));
  } catch (const std::exception& fault) {
    logError(fault.what());
  }
  return qsf::action::RESULT_DONE;
}

}
