#include "apps/tidemark/test/Peer.h"

#include "apps/tidemark/peers/StepTransport.h"

#include "em5/game/HostSession.h"
#include "em5/multiplayer/NetworkManager.h"

namespace tidemark::test {

void Peer::join(em5::HostSession& host) {
  auto transport = std::make_unique<peers::StepTransport>(mSocket, [] { return std::string(); });
  mTransport = transport.get();
  std::vector<std::uint8_t> others;
  for (unsigned int other = 0; other < mMachines; ++other)
    if (other != mIndex) others.push_back(static_cast<std::uint8_t>(other));
  host.getNetworkManager().setTrafficListener([this](const Traffic& traffic) { mTraffic.push_back(traffic); });
  host.createSession(std::move(transport), others);
}

void Peer::leave() { mTransport->leave(); }

void Peer::receive(std::uint32_t number, const qsf::game::BitStream& stream) {
  const std::uint8_t sender = mIndex == 0 ? 1 : 0;
  mTransport->inject(sender, {em5::multiplayer::Envelope::Kind::OPERATION, sender, number, stream});
}

}
