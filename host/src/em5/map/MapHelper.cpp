#include "em5/map/MapHelper.h"

namespace em5 {

qsf::Entity* MapHelper::createObjectByLocalPrefabAssetId(qsf::StringHash localPrefabAssetId) {
  return mMap.createObjectByLocalPrefabAssetId(localPrefabAssetId);
}

}
