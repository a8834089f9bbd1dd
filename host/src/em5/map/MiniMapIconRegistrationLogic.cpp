#include "em5/map/MiniMapIconRegistrationLogic.h"

#include "qsf/base/RecordedOperation.h"

namespace em5 {

namespace {

const qsf::RecordedOperation registerIconCall{"em5::MiniMapIconRegistrationLogic::registerIcon",
                                              "entity, type by its number, `1` if it stands out"};

struct UnitIcon {
  qsf::StringHash name;
  int type;
};
constexpr UnitIcon UNIT_ICONS[] = {
    {"UNIT_AMBULANCE", 7},
    {"UNIT_FIREFIGHTER", 8},
    {"UNIT_POLICE", 9},
    {"UNIT_TECH", 10},
    {"UNIT_AMBULANCE_DOG", 11},
    {"UNIT_VEHICLE_AMBULANCE", 12},
    {"UNIT_VEHICLE_FIREFIGHTER", 13},
    {"UNIT_VEHICLE_POLICE", 14},
    {"UNIT_VEHICLE_TECH", 15},
    {"UNIT_VEHICLE_FIREPLANE", 16},
    {"UNIT_MEDIEVAL", 30},
    {"UNIT_VEHICLE_OTHER_PLAYER", 31},
    {"UNIT_OTHER_PLAYER", 32},
};

}

int MiniMapIconRegistrationLogic::translateCommandableMiniMapIconType(qsf::StringHash name) {
  for (const UnitIcon& icon : UNIT_ICONS)
    if (icon.name == name) return icon.type;
  return 0;
}

void MiniMapIconRegistrationLogic::registerIcon(std::uint64_t entityId, int type, bool isMarked) {
  registerIconCall.record({std::to_string(entityId), std::to_string(type), isMarked ? "1" : "0"});
  mIcons[entityId] = {type, isMarked};
}

const MiniMapIconRegistrationLogic::Icon* MiniMapIconRegistrationLogic::findIcon(std::uint64_t entityId) const {
  const auto found = mIcons.find(entityId);
  return found == mIcons.end() ? nullptr : &found->second;
}

}
