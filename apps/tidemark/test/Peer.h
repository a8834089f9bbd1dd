#pragma once
#include "em5/multiplayer/Session.h"

#include <cstdint>
#include <string>
#include <vector>

namespace em5 {
class HostSession;
}
namespace tidemark::peers {
class StepTransport;
}
namespace tidemark::platform {
class BlockSocket;
}

namespace tidemark::test {

/// A test's machine as part of a game of several: what has passed its door, and what a test does to its network. Owned
/// by the test's session, outlives the host.
class Peer {
public:
  Peer(unsigned int index, unsigned int machines, platform::BlockSocket& socket)
      : mIndex(index), mMachines(machines), mSocket(socket) {}

  unsigned int index() const { return mIndex; }
  unsigned int machines() const { return mMachines; }
  /// Takes part from now on, between the module's start and that of the game.
  void join(em5::HostSession& host);

  using Traffic = em5::multiplayer::Traffic;
  const std::vector<Traffic>& traffic() const { return mTraffic; }
  void leave();
  /// An operation message from outside, first in the next frame: from the host on a client, from machine 1 on the host.
  void receive(std::uint32_t number, const qsf::game::BitStream& stream);

private:
  unsigned int mIndex;
  unsigned int mMachines;
  platform::BlockSocket& mSocket;
  peers::StepTransport* mTransport = nullptr; ///< the session's
  std::vector<Traffic> mTraffic;
};

}
