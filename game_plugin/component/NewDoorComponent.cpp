#include "game_plugin/component/NewDoorComponent.h"

#include "game_plugin/scenario/Log.h"

namespace bt {

namespace {

constexpr qsf::StringHash LOCAL_ROTATION{"LocalRotation"};

}

void NewDoorComponent::declareCamp() {
  // The description belongs to another component; editors have always shown it here.
  camp::Class::declare<NewDoorComponent>("bt::NewDoorComponent")
      .tag("Name", "bt::NewDoorComponent")
      .tag("Description", "bt::NewDoorComponent")
      .base<em5::DoorComponent>()
      .constructor1<qsf::Prototype*>()
      .property("DoorState", &NewDoorComponent::getDoorState, &NewDoorComponent::setDoorState)
      .tag("Description", "If true smoke will appear. If 'Burn Object Required' is true, it will ignite these objects");
}

void NewDoorComponent::onComponentPropertyChange(const qsf::Component& /*component*/, qsf::StringHash propertyId) {
  if (propertyId != LOCAL_ROTATION) return;
  const DoorState state = getDoorState();
  if (state != DOOR_CLOSED && state != DOOR_OPEN) return;
  if (state == DOOR_OPEN) script::logInfo("we hack the door state");
  getAudioProxy().stop();
  getAudioProxy().detach();
}

}
