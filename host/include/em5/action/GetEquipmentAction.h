#pragma once
#include "qsf/action/Action.h"
#include "qsf/base/Ids.h"

#include <string>

namespace em5 {

/// Puts a piece of equipment into a person's hand: a new entity, linked to the person, made from the prefab in the
/// vehicle's inventory, or a bare one of that name where no vehicle is needed. It takes the place of what the person
/// held, which goes back and is destroyed; a person that holds such a piece already keeps it. Emits
/// EM5_ACTION_GET_EQUIPMENT. Ends with empty hands if the owner is no person, if the vehicle is gone or out of reach or
/// has no such equipment.
class QSF_API GetEquipmentAction : public qsf::Action {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash ACTION_ID{"em5::GetEquipmentAction"};
  static void declareCamp();

  void init(const qsf::Entity& vehicle, const std::string& equipmentName);
  /// Without a vehicle. The index is kept for those who ask; -1 means any.
  void init(const std::string& equipmentName, int index);
  qsf::action::Description describe() const override;

protected:
  bool onStartup() override;
  qsf::action::Result updateAction(const qsf::Clock& clock) override;

private:
  qsf::Entity* makeEquipment() const;
  qsf::Entity* takeFromVehicle() const;
  qsf::Entity* makeBareEquipment() const;
  void putInHand(qsf::Entity& equipment) const;

  std::string mEquipmentName;
  std::uint64_t mVehicleId = qsf::UNINITIALIZED_ID;
  int mIndex = -1;
};

}
CAMP_TYPE_NONCOPYABLE(em5::GetEquipmentAction)
