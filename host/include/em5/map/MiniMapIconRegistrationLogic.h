#pragma once
#include "qsf/base/StringHash.h"

#include <cstdint>
#include <map>

namespace em5 {

/// The icons on the small map. Owned by the game.
class QSF_API MiniMapIconRegistrationLogic {
public:
  struct Icon {
    int type;
    bool isMarked; ///< stands out
  };

  /// The type of a unit's icon by the hash of its name in the order info, UNIT_FIREFIGHTER and so on; 0 for no such.
  static int translateCommandableMiniMapIconType(qsf::StringHash name);

  /// Shows the entity as an icon of that type, in the place of one that it has. Noted in the call recorder.
  void registerIcon(std::uint64_t entityId, int type, bool isMarked);
  /// Null for an entity without one.
  const Icon* findIcon(std::uint64_t entityId) const;

private:
  std::map<std::uint64_t, Icon> mIcons;
};

}
