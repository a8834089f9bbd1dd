#pragma once
#include "qsf/base/StringHash.h"

#include <string>

namespace em5 {

namespace assets {
/// Passers-by.
inline constexpr qsf::StringHash SPAWNPOOL_DEFAULT_PERSON{"em5/em5_spawnpool/person/default"};
}

/// The spawn pools: assets of the type `em5_spawnpool`, each a list of prefabs of which one is drawn.
class QSF_API SpawnPoolManager {
public:
  /// Local asset name of one of the pool's prefabs, drawn from the game's random source. Empty if there is no such
  /// pool, if it is empty, or if its file is faulty, which is logged with its place.
  static std::string getRandomNameFromSpawnPool(qsf::StringHash spawnPoolAssetId);
};

}
