#pragma once
#include "em5/multiplayer/DataCacheSystem.h"
#include "em5/multiplayer/OperationMessageHandlerManager.h"
#include "em5/multiplayer/Transport.h"

#include <functional>
#include <set>

namespace em5::multiplayer {

/// What has passed this machine's door, for tests, reports and tools.
struct QSF_API Traffic {
  enum class Kind { SENT, RECEIVED, SYNCED } kind = Kind::SENT;
  std::uint8_t player = 0;  ///< the other machine's; 0 for what was synced
  std::uint32_t number = 0; ///< of the operation message
  std::uint64_t entity = 0; ///< whose data cache item was written or read
  std::size_t bits = 0;     ///< of the message or the item
  bool understood = true;   ///< what was received found a handler that read it whole
};
using TrafficListener = std::function<void(const Traffic&)>;

/// A session between machines, as this machine sees it. Owned by the network manager.
class QSF_API SessionBase {
public:
  SessionBase(std::uint8_t localIndex, std::unique_ptr<Transport> transport);
  virtual ~SessionBase();
  SessionBase(const SessionBase&) = delete;
  SessionBase& operator=(const SessionBase&) = delete;

  OperationMessageHandlerManager& getOperationMessageHandlerManager() { return mHandlerManager; }
  DataCacheSystem& getDataCacheSystem() { return mDataCache; }
  /// The player index of this machine: 0 for the host.
  std::uint8_t getLocalIndex() const { return mLocalIndex; }
  /// The other machines that are there, by player index.
  const std::set<std::uint8_t>& getOthers() const { return mOthers; }

  /// Its player comes into the game, if there is one and it isn't there yet.
  void addOther(std::uint8_t player);
  /// A new game gets the players of all machines.
  void addPlayersToGame() const;
  /// The machine has gone, with a word or without: a log line, and nothing is sent to it any more. Its player stays in
  /// the game, as its units do.
  void removeOther(std::uint8_t player);

  /// The frame's network step: what has arrived goes to its handlers.
  void receive();
  /// The frame's end: data cache updates, then everything goes out.
  void finishFrame(qsf::Time timePassed);

  /// Hears of each message behind its handling; empty for none.
  void setTrafficListener(TrafficListener listener) { mListener = std::move(listener); }

protected:
  void sendOperationMessage(std::uint8_t receiver, std::uint32_t number, const qsf::game::BitStream& stream);

private:
  void takeMessage(std::uint8_t sender, std::uint32_t number, const qsf::game::BitStream& stream);
  void sendDataCacheUpdate();
  void tell(const Traffic& traffic) const;

  std::uint8_t mLocalIndex;
  std::unique_ptr<Transport> mTransport;
  OperationMessageHandlerManager mHandlerManager;
  DataCacheSystem mDataCache;
  std::set<std::uint8_t> mOthers;
  TrafficListener mListener;
};

namespace server {

/// The machine that decides.
class QSF_API Host : public SessionBase {
public:
  explicit Host(std::unique_ptr<Transport> transport) : SessionBase(0, std::move(transport)) {}
  void sendOperationMessageToAllClients(std::uint32_t number, const qsf::game::BitStream& stream);
  /// Nothing for a player who isn't a client of the session.
  void sendOperationMessageToClient(std::uint32_t player, std::uint32_t number, const qsf::game::BitStream& stream);
};

}

namespace client {

class QSF_API Client : public SessionBase {
public:
  using SessionBase::SessionBase;
  void sendOperationMessageToHost(std::uint32_t number, const qsf::game::BitStream& stream);
};

}

}
