#include "em5/freeplay/FreeplayEventFactory.h"

#include "em5/freeplay/EventDefinition.h"
#include "qsf/base/Random.h"
#include "qsf/base/RecordedOperation.h"
#include "qsf/reflection/ClassRegistry.h"

#include <stdexcept>

namespace em5 {

static const qsf::DeclaredClass<FreeplayEventFactory> declared;
static const qsf::RecordedOperation setTriggerFailReasonCall{"em5::FreeplayEventFactory::setTriggerFailReason", "text"};

void FreeplayEventFactory::declareCamp() {
  qsf::ClassRegistry::declareOnce<FreeplayEvent>();
  camp::Class::declare<FreeplayEventFactory>("em5::FreeplayEventFactory").base<qsf::Object>().constructor0();
}

FreeplayEventFactory::FreeplayEventFactory() = default;

FreeplayEventFactory::~FreeplayEventFactory() = default;

std::unique_ptr<FreeplayEvent> FreeplayEventFactory::tryTriggerEvent(const FreeplayEventTriggerInfo& triggerInfo) {
  auto event = std::make_unique<FreeplayEvent>();
  initializeEventInstance(*event);
  deserializeRandomFreeplayVariant(*event, triggerInfo);
  return event;
}

void FreeplayEventFactory::setTriggerFailReason(const std::string& reason) {
  mTriggerFailReason = reason;
  setTriggerFailReasonCall.record({reason});
}

void FreeplayEventFactory::initializeEventInstance(FreeplayEvent& event) const {
  if (!mDefinition) return;
  event.mDefinition = mDefinition->asset;
  event.mEventName = mDefinition->name;
  event.mHintParameters.supervisorMessage = mDefinition->supervisorMessage;
  event.mSucceedsAfter = mDefinition->succeedsAfter;
  event.mFailsAfter = mDefinition->failsAfter;
  event.mCanWinEvent = mDefinition->canWin;
  event.mCanLoseEvent = mDefinition->canLose;
}

void FreeplayEventFactory::deserializeRandomFreeplayVariant(FreeplayEvent& event,
                                                            const FreeplayEventTriggerInfo& triggerInfo) {
  if (mDefinition) {
    setProperties(event, mDefinition->properties);
    const std::vector<EventProperties>& variants = mDefinition->variants;
    if (!variants.empty())
      setProperties(event, variants[qsf::Random::getRandomUint(0, static_cast<std::uint32_t>(variants.size() - 1))]);
  }
  setProperties(event, triggerInfo.getProperties());
}

void FreeplayEventFactory::setProperties(FreeplayEvent& event, const EventProperties& properties) {
  for (const auto& [name, value] : properties) {
    if (event.getCampClass().hasProperty(name))
      event.setPropertyByString(name, value);
    else if (getCampClass().hasProperty(name))
      setPropertyByString(name, value);
    else
      throw std::invalid_argument("neither " + event.getCampClassName() + " nor " + getCampClass().name() +
                                  " has a property \"" + name + "\"");
  }
}

}
