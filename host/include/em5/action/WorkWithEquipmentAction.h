#pragma once
#include "em5/action/WorkAtTargetAction.h"

namespace em5 {

/// Lets a person work on something with what it holds.
class QSF_API WorkWithEquipmentAction : public WorkAtTargetAction {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::WorkWithEquipmentAction"};
  static void declareCamp();

  enum class Work {
    EXTINGUISH,     ///< a fire goes out
    BREAK,          ///< a tree is down, a closed door opens, one of those trapped in a building comes out
    CUT_OPEN,       ///< a vehicle needs no cutting any more
    REPAIR,         ///< what an engineer can use is used up, a defective box is intact; the message says so
    SEARCH_IN_WATER ///< what lies below a diving spot is found, which the message says; the spot is searched
  };
  void init(const qsf::Entity& target, qsf::Time workingTime, Work work);

protected:
  void finishOn(qsf::Entity& target) override;

private:
  Work mWork = Work::EXTINGUISH;
};

}
CAMP_TYPE_NONCOPYABLE(em5::WorkWithEquipmentAction)
