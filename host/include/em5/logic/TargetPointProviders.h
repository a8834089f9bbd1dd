#pragma once
#include "qsf/logic/TargetPointProvider.h"

namespace em5 {

/// Where one takes equipment out of a vehicle: at its nearest edge.
class QSF_API GetEquipmentTargetPointProvider : public qsf::logic::TargetPointProvider {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash TARGET_POINT_ID{"em5::GetEquipmentTargetPointProvider"};
  static void declareCamp();
};

/// Where one gets into a vehicle: at its nearer long side. Beside anything else at the nearest edge.
class QSF_API EnterVehicleTargetPointProvider : public qsf::logic::TargetPointProvider {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash TARGET_POINT_ID{"em5::EnterVehicleTargetPointProvider"};
  static void declareCamp();
  qsf::logic::TargetPoint computeTargetPoint(qsf::Entity& mover, qsf::Entity& target) const override;
};

/// Where a ladder vehicle stands for whoever waits up there: below, at the height on which it drives.
class QSF_API LadderTargetPointProvider : public qsf::logic::TargetPointProvider {
  CAMP_RTTI()
public:
  static constexpr qsf::StringHash TARGET_POINT_ID{"em5::LadderTargetPointProvider"};
  static void declareCamp();
  qsf::logic::TargetPoint computeTargetPoint(qsf::Entity& mover, qsf::Entity& target) const override;
};

}
CAMP_TYPE_NONCOPYABLE(em5::GetEquipmentTargetPointProvider)
CAMP_TYPE_NONCOPYABLE(em5::EnterVehicleTargetPointProvider)
CAMP_TYPE_NONCOPYABLE(em5::LadderTargetPointProvider)
