#pragma once
#include "qsf/base/Clock.h"
#include "qsf/base/StringHash.h"
#include "qsf/game/BitStream.h"

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>

namespace qsf {
class Entity;
}

namespace em5::multiplayer {

/// What the machines of a session keep alike of one entity. On the host each tick of the data cache prepares it and
/// writes it if that said so; on the clients it reads what has come, and applies it at the tick that it belongs to.
/// Owned by the data cache, from a game's start to its end; its entity may go before it.
class QSF_API DataCacheBase {
public:
  explicit DataCacheBase(std::uint64_t entityId) : mEntityId(entityId) {}
  virtual ~DataCacheBase() = default;
  DataCacheBase(const DataCacheBase&) = delete;
  DataCacheBase& operator=(const DataCacheBase&) = delete;

  /// False: not even asked in this tick.
  virtual bool includeForPrepare() { return true; }
  /// True if there is something to write.
  virtual bool prepare() = 0;
  virtual void write(qsf::game::BitStream& stream) = 0;
  /// What the host wrote in the tick of that clock. Throws std::runtime_error for a stream that holds something else;
  /// it is dropped then.
  virtual void read(qsf::game::BitStream& stream, const qsf::Clock& clock) = 0;
  virtual void apply(const qsf::Clock& clock) = 0;

  std::uint64_t getEntityId() const { return mEntityId; }
  /// In the main map; null if it has gone.
  qsf::Entity* getEntity() const;

private:
  std::uint64_t mEntityId;
};

/// Keeps alike whether an entity has a component: on the clients it comes and goes as on the host. Derived classes call
/// these operations first.
class QSF_API DataCacheComponentExistenceTrackingBase : public DataCacheBase {
public:
  /// The component exists now.
  DataCacheComponentExistenceTrackingBase(qsf::Entity& entity, qsf::StringHash componentId);

  bool prepare() override;
  /// Two bools: whether the existence has changed, whether the component exists.
  void write(qsf::game::BitStream& stream) override;
  void read(qsf::game::BitStream& stream, const qsf::Clock& clock) override;
  void apply(const qsf::Clock& clock) override;

protected:
  /// As prepare found it, or as the stream read last told.
  bool doesComponentExist() const { return mExists; }
  qsf::StringHash getComponentId() const { return mComponentId; }

private:
  struct Change {
    std::uint32_t tick;
    bool exists;
  };
  qsf::StringHash mComponentId;
  std::uint32_t mChangesCount;
  bool mExists = true;
  bool mChanged = false;
  std::deque<Change> mHistory;
};

/// Asks the listeners for an entity's items. Plug-ins add theirs for as long as they live.
class QSF_API DataCacheItemFactory {
public:
  using Items = std::map<std::uint32_t, std::unique_ptr<DataCacheBase>>;
  class QSF_API Listener {
  public:
    virtual ~Listener() = default;
    /// The types that it makes, with their names for logs.
    virtual void registerItemTypes(std::map<std::uint32_t, std::string>& types) = 0;
    /// Adds the entity's items under their types (1 to 255).
    virtual void createItems(qsf::Entity& entity, Items& items) = 0;
  };

  /// The listener stays its owner's. One added twice is asked once.
  static void addListener(Listener& listener);
  static void removeListener(Listener& listener);
  static Items createItems(qsf::Entity& entity);
  static std::map<std::uint32_t, std::string> getItemTypes();
};

}
