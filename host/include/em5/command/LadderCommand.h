#pragma once
#include "em5/action/WorkAtTargetAction.h"
#include "em5/command/Command.h"

namespace em5 {

/// What a ladder vehicle does for a person that waits to be rescued so: it drives there, brings its ladder up and takes
/// the person down (see RescueWithLadderAction). For road vehicles that are in a valid state and understand the
/// command. Priority 110.
class QSF_API RescueWithLadderCommand : public Command {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::RescueWithLadderCommand"};
  explicit RescueWithLadderCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkCaller(qsf::Entity& caller) override;
  bool checkContext(const qsf::game::CommandContext& context) override;
  void execute(const qsf::game::CommandContext& context) override;
};

/// Lets a vehicle drive to a person, or to the building that it is in, and take it down: the person stands beside the
/// vehicle then, does nothing, and the message EM5_ACTION_LOAD_PERSON_ON_DLK tells of it.
class QSF_API RescueWithLadderAction : public WorkAtTargetAction {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::RescueWithLadderAction"};
  static void declareCamp();

protected:
  void finishOn(qsf::Entity& person) override;
  qsf::Entity& getPlaceOf(qsf::Entity& person) const override;
  qsf::StringHash getTargetPointId() const override;
};

}
CAMP_TYPE_NONCOPYABLE(em5::RescueWithLadderCommand)
CAMP_TYPE_NONCOPYABLE(em5::RescueWithLadderAction)
