#pragma once
#include "em5/freeplay/Objective.h"

namespace em5 {

class FreeplayEvent;

/// What the game itself adds to the objectives of an event. Made on the spot; lives no longer than the event.
class QSF_API ObjectiveHelper {
public:
  /// Type ids of the two fail conditions, which the game counts.
  static constexpr qsf::StringHash BURNING_OBJECTS{"burning_objects"};
  static constexpr qsf::StringHash DEAD_PERSONS{"dead_persons"};
  /// Type id of the objective to put out the fires of an event, and its text id.
  static constexpr qsf::StringHash EXTINGUISH_FIRES{"extinguish_fires"};
  static constexpr const char* EXTINGUISH_FIRES_TEXT = "EM5_EVENTOBJECTIVE_03";

  explicit ObjectiveHelper(FreeplayEvent& event) : mEvent(event) {}

  /// The event fails when so many of its entities burn at a time. One that is there takes the new number.
  void addBurningObjectsAndBuildingsFailCondition(int number);
  /// The event fails when so many of its persons have died, those that are gone since included.
  void addDeadPersonsFailCondition(int number);
  void removeObjectiveByTypeId(qsf::StringHash typeId);

  /// A fire of the event has begun: it has to be put out.
  void addFire(const qsf::Entity& entity);
  /// The fire is out. Nothing happens if the objective is gone.
  void countExtinguishedFire(const qsf::Entity& entity);

  /// For the event manager, in each frame: counts for the fail conditions that there are.
  void updateFailConditions();

private:
  FreeplayEvent& mEvent;
};

}
