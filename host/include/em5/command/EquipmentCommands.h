#pragma once
#include "em5/action/WorkWithEquipmentAction.h"
#include "em5/command/Command.h"

#include <string_view>

namespace em5 {

/// What a person does with the equipment in its hand: it walks to the target and works there for a while (see
/// WorkWithEquipmentAction). The callers are well, outside, and hold equipment of the name that goes with the command.
class QSF_API EquipmentCommand : public Command {
  CAMP_RTTI()
public:
  static void declareCamp();
  /// The command that goes with equipment of that name; uninitialised for one that has none.
  static qsf::StringHash findByEquipmentName(std::string_view equipmentName);

  bool checkCaller(qsf::Entity& caller) override;
  void execute(const qsf::game::CommandContext& context) override;

protected:
  EquipmentCommand(qsf::game::CommandManager* manager, qsf::StringHash id, int priority, float seconds,
                   WorkWithEquipmentAction::Work work);

private:
  float mSeconds;
  WorkWithEquipmentAction::Work mWork;
};

/// "hose", for what burns. Priority 100, 4 seconds.
class QSF_API ExtinguishWithHoseCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::ExtinguishWithHoseCommand"};
  explicit ExtinguishWithHoseCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

/// "extinguisher", for what burns. Priority 90, 8 seconds.
class QSF_API ExtinguishWithExtinguisherCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::ExtinguishWithExtinguisherCommand"};
  explicit ExtinguishWithExtinguisherCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

/// "axe", for a tree that stands, a door that is closed, and a building with persons trapped inside. Priority 80, 3
/// seconds.
class QSF_API UseAxeCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::UseAxeCommand"};
  explicit UseAxeCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

/// "cutter", for a vehicle that can be cut open. Priority 75, 5 seconds.
class QSF_API CutVehicleCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::CutVehicleCommand"};
  explicit CutVehicleCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

/// "toolbox", for what an engineer can repair or use. Priority 70, 5 seconds.
class QSF_API RepairWithToolboxCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::RepairWithToolboxCommand"};
  explicit RepairWithToolboxCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

/// "diving_gear", for a diving spot that is intact. Priority 60, 6 seconds.
class QSF_API DiveCommand : public EquipmentCommand {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash COMMAND_ID{"em5::DiveCommand"};
  explicit DiveCommand(qsf::game::CommandManager* manager);
  static void declareCamp();
  bool checkContext(const qsf::game::CommandContext& context) override;
};

}
CAMP_TYPE_NONCOPYABLE(em5::EquipmentCommand)
CAMP_TYPE_NONCOPYABLE(em5::ExtinguishWithHoseCommand)
CAMP_TYPE_NONCOPYABLE(em5::ExtinguishWithExtinguisherCommand)
CAMP_TYPE_NONCOPYABLE(em5::UseAxeCommand)
CAMP_TYPE_NONCOPYABLE(em5::CutVehicleCommand)
CAMP_TYPE_NONCOPYABLE(em5::RepairWithToolboxCommand)
CAMP_TYPE_NONCOPYABLE(em5::DiveCommand)
