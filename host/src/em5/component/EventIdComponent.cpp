#include "em5/component/EventIdComponent.h"

#include "em5/freeplay/FreeplaySystem.h"
#include "em5/plugin/Plugin.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

namespace em5 {

static const qsf::DeclaredClass<EventIdComponent> declared;

void EventIdComponent::declareCamp() {
  camp::Class::declare<EventIdComponent>("em5::EventIdComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("EventId", &EventIdComponent::mEventId)
      .tag(qsf::UNSIGNED_TAG)
      .property("Reason", &EventIdComponent::mReason);
}

void EventIdComponent::addToEvent(const FreeplayEvent& event, int reason) {
  if (mEventId != event.getId()) setEvent(event, reason);
}

void EventIdComponent::setEvent(const FreeplayEvent& event, int reason) {
  mEventId = event.getId();
  mReason = reason;
}

FreeplayEvent* EventIdComponent::getFreeplayEvent() const {
  const Plugin* game = Plugin::getInstance();
  return game ? game->getFreeplaySystem().getEventManager().getEventById(mEventId) : nullptr;
}

}
