#pragma once
#include "qsf/map/Entity.h"

#include <string>

namespace script {

/// A new entity on the main map from the prefab of that local asset name. Null, with a message in the log, if there is
/// no such asset or if no entity can be made from it.
qsf::Entity* spawnPrefab(const std::string& localAssetName);

}
