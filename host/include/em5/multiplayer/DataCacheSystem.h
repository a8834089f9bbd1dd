#pragma once
#include "em5/multiplayer/DataCache.h"
#include "qsf/base/Time.h"

#include <vector>

namespace em5::multiplayer {

/// The items of a session's data cache and its ticks, as many a second as the settings say. Owned by the session.
class QSF_API DataCacheSystem {
public:
  /// Asks the factory's listeners for the items of all entities of the main map, once. Those of a game before go.
  void startGame();
  void stopGame() { mItems.clear(); }

  /// Number of the last update, on the host; 0 before the first.
  std::uint32_t getTick() const { return mTick; }

  struct Item {
    std::uint64_t entity;
    std::size_t bits;
  };
  /// True if a tick is due; at most one for each call.
  bool advance(qsf::Time timePassed);
  struct Update {
    std::vector<Item> items;
    std::vector<qsf::game::BitStream> streams; ///< the items side by side, as many to a stream as it may hold
  };
  /// On the host: prepares all items and writes those that have changed, in the order of their entities. No stream is
  /// longer than so many bytes; an item that is, is left out with an error.
  Update writeUpdate(std::size_t mostBytes);
  /// On a client: what has come is read, and applied at the tick that it belongs to. A stream that breaks off costs
  /// what is behind the break; items that nobody knows here are passed over.
  std::vector<Item> readUpdate(std::uint32_t tick, qsf::game::BitStream stream);

private:
  std::map<std::uint64_t, DataCacheItemFactory::Items> mItems; ///< by entity
  qsf::Time mSinceUpdate;
  std::uint32_t mTick = 0;
};

}
