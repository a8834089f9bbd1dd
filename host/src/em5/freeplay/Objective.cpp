#include "em5/freeplay/Objective.h"

#include "em5/freeplay/EventArchive.h"
#include "qsf/Qsf.h"
#include "qsf/localization/LocalizationSystem.h"
#include "qsf/map/Entity.h"
#include "qsf/reflection/CampTypes.h"
#include "qsf/reflection/ClassRegistry.h"

#include <algorithm>
#include <limits>

namespace em5 {

namespace {

// Scripts set any number.
int oneMore(int number) { return number == std::numeric_limits<int>::max() ? number : number + 1; }
int oneLess(int number) { return number == std::numeric_limits<int>::min() ? number : number - 1; }

/// Puts the number in the place of the first %d behind `from`; returns where the search for the next one begins.
std::size_t insertNumber(std::string& text, std::size_t from, int number) {
  const std::size_t place = text.find("%d", from);
  if (place == std::string::npos) return text.size();
  const std::string digits = std::to_string(number);
  text.replace(place, 2, digits);
  return place + digits.size();
}

}

static const qsf::DeclaredClass<Objective> declared;

void Objective::declareCamp() {
  camp::Class::declare<Objective>("em5::Objective")
      .base<qsf::Object>()
      .property("TypeId", &Objective::getTypeId)
      .property("Type", &Objective::getTypeNumber)
      .property("Text", &Objective::getText, &Objective::setText)
      .property("NeededNumber", &Objective::getNeededNumber, &Objective::setNeededNumber)
      .property("CurrentNumber", &Objective::getCurrentNumber, &Objective::setCurrentNumber)
      .property("OrderPriority", &Objective::getOrderPriority);
}

std::string Objective::getShownText() const {
  const qsf::Qsf* host = qsf::Qsf::instance();
  std::string text = host ? host->getLocalizationSystem().translate(mText) : mText;
  insertNumber(text, insertNumber(text, 0, mCurrentNumber), mNeededNumber);
  return text;
}

void Objective::increaseNeededNumber(const qsf::Entity* entity) {
  mNeededNumber = oneMore(mNeededNumber);
  if (entity && std::ranges::find(mEntityIds, entity->getId()) == mEntityIds.end())
    mEntityIds.push_back(entity->getId());
}

void Objective::decreaseNeededNumber(const qsf::Entity* entity) {
  mNeededNumber = oneLess(mNeededNumber);
  forget(entity);
}

void Objective::increaseCurrentNumber(const qsf::Entity* entity) {
  mCurrentNumber = oneMore(mCurrentNumber);
  forget(entity);
}

void Objective::forget(const qsf::Entity* entity) {
  if (entity) std::erase(mEntityIds, entity->getId());
}

void Objective::serialize(EventArchive& archive) {
  archive.member("typeId", mTypeId);
  archive.member("eventId", mEventId);
  archive.member("type", mType);
  archive.member("text", mText);
  archive.member("neededNumber", mNeededNumber);
  archive.member("currentNumber", mCurrentNumber);
  archive.member("orderPriority", mOrderPriority);
  archive.member("entityIds", mEntityIds);
}

}
