#pragma once
#include "em5/multiplayer/DataCache.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace script {

class MultiplayerSynchronizationMasterComponent;

namespace multiplayer {

/// Keeps the properties that a master's helpers name alike on all machines: the host reads them as text and writes what
/// has changed, the clients write it into theirs. Owned by the data cache.
class MultiplayerSynchroniationHelperComponentData : public em5::multiplayer::DataCacheComponentExistenceTrackingBase {
public:
  explicit MultiplayerSynchroniationHelperComponentData(qsf::Entity& entity);

  bool includeForPrepare() override { return true; }
  /// A change that is found before a missing entity or component ends the walk is lost.
  bool prepare() override;
  void write(qsf::game::BitStream& stream) override;
  void read(qsf::game::BitStream& stream, const qsf::Clock& clock) override;
  void apply(const qsf::Clock& clock) override;

private:
  /// One helper of the master's list.
  struct SlaveItem {
    bool changed = false;
    std::uint64_t slaveId = 0;
    std::uint8_t index = 0; ///< in the master's list
    bool stringChanged = false;
    std::string lastText;
    std::string currentText;
    std::uint64_t lastSynchronizedEntity = 0;
    bool entityChanged = false;
    bool cutTold = false;
  };
  struct Update {
    std::uint32_t tick;
    std::vector<SlaveItem> items;
  };

  MultiplayerSynchronizationMasterComponent* getMaster() const;
  /// False ends the walk over the items.
  bool prepareItem(SlaveItem& item);
  void writeItem(SlaveItem& item, qsf::game::BitStream& stream) const;
  void applyItem(const SlaveItem& item, const MultiplayerSynchronizationMasterComponent& master) const;

  std::vector<SlaveItem> mItems;
  std::uint8_t mChangedCount = 0;
  std::deque<Update> mHistory;
};

/// Makes the data of each entity with a master. Added by the plug-in for as long as it runs.
class DataCacheItemFactoryListenerMultiplayerSchronizationHelperComponent
    : public em5::multiplayer::DataCacheItemFactory::Listener {
public:
  static constexpr std::uint32_t TYPE = 47;
  void registerItemTypes(std::map<std::uint32_t, std::string>& types) override;
  void createItems(qsf::Entity& entity, em5::multiplayer::DataCacheItemFactory::Items& items) override;
};

}

}
