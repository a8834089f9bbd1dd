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
  /// What the game asks of events: the id of the objective, which is required, and its text id.
  struct Task {
    qsf::StringHash typeId;
    const char* text;
  };
  static constexpr Task EXTINGUISH_FIRES{qsf::StringHash("extinguish_fires"), "EM5_EVENTOBJECTIVE_03"};
  static constexpr Task FREE_TRAPPED_PERSONS{qsf::StringHash("free_trapped_persons"), "EM5_EVENTOBJECTIVE_TRAPPED"};
  static constexpr Task RESCUE_FROM_WINDOW{qsf::StringHash("rescue_from_window"), "EM5_EVENTOBJECTIVE_04"};
  static constexpr Task CUT_VEHICLES{qsf::StringHash("cut_vehicles"), "EM5_EVENTOBJECTIVE_CUT"};

  /// The running event of that id; null if it has ended, and for 0.
  static FreeplayEvent* findEvent(std::uint64_t id);

  explicit ObjectiveHelper(FreeplayEvent& event) : mEvent(event) {}

  /// The event fails when so many of its entities burn at a time. One that is there takes the new number.
  void addBurningObjectsAndBuildingsFailCondition(int number);
  /// The event fails when so many of its persons have died, those that are gone since included.
  void addDeadPersonsFailCondition(int number);
  void removeObjectiveByTypeId(qsf::StringHash typeId);

  /// So many times more. The entity, which may be null, is waited for.
  void addTask(const Task& task, int number, const qsf::Entity* entity = nullptr);
  /// Done once. Nothing happens if the objective is gone.
  void countTask(const Task& task, const qsf::Entity* entity = nullptr);
  /// So many times nobody can do it any more; an objective that then needs nothing is removed.
  void withdrawTask(const Task& task, int number, const qsf::Entity* entity = nullptr);

  /// For the event manager, in each frame: counts for the fail conditions that there are.
  void updateFailConditions();

private:
  FreeplayEvent& mEvent;
};

}
