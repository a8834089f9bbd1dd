#include "em5/component/DivingSpotComponent.h"

#include "em5/base/Messages.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "qsf/Qsf.h"
#include "qsf/map/Map.h"
#include "qsf/message/MessageSystem.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"
#include "qsf/reflection/PropertyText.h"

#include <utility>

namespace em5 {

static const qsf::DeclaredClass<DivingSpotComponent> declared;

void DivingSpotComponent::declareCamp() {
  camp::Class::declare<DivingSpotComponent>("em5::DivingSpotComponent")
      .base<Component>()
      .constructor1<qsf::Prototype*>()
      .property("Intact", &DivingSpotComponent::isIntact, &DivingSpotComponent::setIntactByReflection)
      .property("FoundEntity", &DivingSpotComponent::getFoundEntity, &DivingSpotComponent::setFoundEntity)
      .tag(qsf::UNSIGNED_TAG)
      .property("EventId", &DivingSpotComponent::mEventId)
      .tag(qsf::UNSIGNED_TAG);
}

void DivingSpotComponent::setIntact(bool intact, FreeplayEvent* event) {
  mIntact = intact;
  mEventId = event ? event->getId() : 0;
}

void DivingSpotComponent::search() {
  if (!std::exchange(mIntact, false)) return;
  const std::uint64_t spotId = getEntityId();
  const std::uint64_t foundId = mFoundEntity == qsf::UNINITIALIZED_ID ? spotId : mFoundEntity;
  if (qsf::Entity* found = getEntity().getMap().getEntityById(foundId)) found->setHidden(false);
  qsf::Qsf::instance()->getMessageSystem().emitMessage(
      qsf::MessageConfiguration(Messages::EM5_ACTION_FIND_ENTITY_FROM_DIVINGSPOT, spotId, foundId));
}

}
