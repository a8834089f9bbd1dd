#include "em5/map/MapHelper.h"

#include "em5/game/Player.h"
#include "qsf/base/RecordedOperation.h"

namespace em5 {

static const qsf::RecordedOperation flyCameraToEntityCall{"em5::MapHelper::flyCameraToEntity",
                                                          "entity, index of the player"};

qsf::Entity* MapHelper::createObjectByLocalPrefabAssetId(qsf::StringHash localPrefabAssetId) {
  return mMap.createObjectByLocalPrefabAssetId(localPrefabAssetId);
}

void MapHelper::flyCameraToEntity(const qsf::Entity& entity, const Player& player) {
  flyCameraToEntityCall.record({std::to_string(entity.getId()), std::to_string(player.getPlayerIndex())});
}

}
