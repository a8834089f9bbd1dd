#include "em5/freeplay/ObjectiveHelper.h"

#include "em5/component/HealthComponent.h"
#include "em5/freeplay/FreeplayEvent.h"
#include "em5/freeplay/FreeplaySystem.h"
#include "em5/map/EntityHelper.h"
#include "em5/plugin/Plugin.h"

#include <algorithm>

namespace em5 {

namespace {

constexpr int ORDER_PRIORITY = 100;
constexpr const char* BURNING_OBJECTS_TEXT = "EM5_FAILCONDITION_BURNING_OBJECTS";
constexpr const char* DEAD_PERSONS_TEXT = "EM5_FAILCONDITION_DEAD_PERSONS";

void addFailCondition(FreeplayEvent& event, qsf::StringHash typeId, const char* text, int number) {
  Objective& objective =
      event.getObjectives().getOrCreateObjective(typeId, OBJECTIVE_FAIL, event.getId(), ORDER_PRIORITY);
  objective.setText(text);
  objective.setNeededNumber(number);
}

}

void ObjectiveHelper::addBurningObjectsAndBuildingsFailCondition(int number) {
  addFailCondition(mEvent, BURNING_OBJECTS, BURNING_OBJECTS_TEXT, number);
  mEvent.mCountsBurningObjects = true;
  updateFailConditions();
}

void ObjectiveHelper::addDeadPersonsFailCondition(int number) {
  addFailCondition(mEvent, DEAD_PERSONS, DEAD_PERSONS_TEXT, number);
  mEvent.mCountsDeadPersons = true;
  updateFailConditions();
}

void ObjectiveHelper::removeObjectiveByTypeId(qsf::StringHash typeId) {
  mEvent.getObjectives().removeObjectiveByTypeId(typeId);
}

FreeplayEvent* ObjectiveHelper::findEvent(std::uint64_t id) {
  const Plugin* game = id != 0 ? Plugin::getInstance() : nullptr;
  return game ? game->getFreeplaySystem().getEventManager().getEventById(id) : nullptr;
}

void ObjectiveHelper::addTask(const Task& task, int number, const qsf::Entity* entity) {
  if (number <= 0) return;
  Objective& objective =
      mEvent.getObjectives().getOrCreateObjective(task.typeId, OBJECTIVE_REQUIRED, mEvent.getId(), ORDER_PRIORITY);
  objective.setText(task.text);
  for (int i = 0; i < number; ++i)
    objective.increaseNeededNumber(entity);
}

void ObjectiveHelper::countTask(const Task& task, const qsf::Entity* entity) {
  if (Objective* objective = mEvent.getObjectives().getObjectiveByTypeId(task.typeId))
    objective->increaseCurrentNumber(entity);
}

void ObjectiveHelper::withdrawTask(const Task& task, int number, const qsf::Entity* entity) {
  Objective* objective = mEvent.getObjectives().getObjectiveByTypeId(task.typeId);
  if (!objective) return;
  for (int i = 0; i < number; ++i)
    objective->decreaseNeededNumber(entity);
  if (objective->getNeededNumber() <= 0) removeObjectiveByTypeId(task.typeId);
}

void ObjectiveHelper::updateFailConditions() {
  if (!mEvent.mCountsBurningObjects && !mEvent.mCountsDeadPersons) return;
  int burning = 0;
  for (qsf::Entity* entity : mEvent.getEntities()) {
    burning += EntityHelper(*entity).isBurning();
    const HealthComponent* health = entity->getComponent<HealthComponent>();
    if (health && health->isDead() && std::ranges::find(mEvent.mDeadIds, entity->getId()) == mEvent.mDeadIds.end())
      mEvent.mDeadIds.push_back(entity->getId());
  }
  // Either condition may have been taken off again.
  Objective* burningObjects = mEvent.getObjectives().getObjectiveByTypeId(BURNING_OBJECTS);
  if (mEvent.mCountsBurningObjects && burningObjects) burningObjects->setCurrentNumber(burning);
  Objective* deadPersons = mEvent.getObjectives().getObjectiveByTypeId(DEAD_PERSONS);
  if (mEvent.mCountsDeadPersons && deadPersons) deadPersons->setCurrentNumber(static_cast<int>(mEvent.mDeadIds.size()));
}

}
