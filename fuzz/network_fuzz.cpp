// Fuzzes what machines of a session tell each other: whatever bytes come in, they neither crash nor hang a frame, nor
// take more memory than they hold. The first byte says which door they come to.
#include "em5/multiplayer/NetworkManager.h"
#include "em5/multiplayer/NetworkTransport.h"
#include "game_plugin/component/MultiplayerSynchronizationHelperComponent.h"
#include "game_plugin/component/MultiplayerSynchronizationMasterComponent.h"
#include "game_plugin/plugin/Plugin.h"
#include "game_plugin/scenario/documentation/ReferenceFiles.h"

#include "em5/game/HostSession.h"
#include "qsf/Qsf.h"
#include "qsf/log/LogSystem.h"
#include "qsf/map/Entity.h"
#include "qsf/map/Map.h"
#include "qsf/plugin/PluginSystem.h"

#include <camp/arrayproperty.hpp>
#include <camp/userobject.hpp>

#include <memory>

namespace {

using namespace em5::multiplayer;

/// Hands out what it was given, once.
class OneShot : public Transport {
public:
  void send(std::uint8_t /*receiver*/, const Envelope& /*envelope*/) override {}
  std::vector<Event> receive() override { return std::exchange(events, {}); }
  std::vector<Event> events;
};

/// A client with a master and a helper on its map, and the module's handlers. It has no files: what comes in is all.
struct Client {
  std::unique_ptr<em5::HostSession> host;
  OneShot* transport = nullptr;

  Client() {
    script::documentation::wantReferenceFiles(false);
    em5::HostSession::Options options;
    options.players = 2;
    options.localPlayer = 1;
    options.logThreshold = qsf::LogSystem::NONE + 1;
    host = std::make_unique<em5::HostSession>(options);
    host->startup();
    host->getQsf().getPluginSystem().addPlugin(std::make_unique<script::Plugin>());
    auto made = std::make_unique<OneShot>();
    transport = made.get();
    host->createSession(std::move(made), {0});
    qsf::Map& map = host->getQsf().getMainMap();
    for (const std::uint64_t id : {101, 102})
      map.createEntity(id);
    using Helper = script::MultiplayerSynchronizationHelperComponent;
    using Master = script::MultiplayerSynchronizationMasterComponent;
    const camp::UserObject helper(*map.getEntityById(101)->getOrCreateComponent<Helper>());
    helper.set("Component Name", "qsf::MetadataComponent");
    helper.set("Property Name", "Description");
    const camp::UserObject master(*map.getEntityById(102)->getOrCreateComponent<Master>());
    const auto& slaves =
        static_cast<const camp::ArrayProperty&>(camp::classByType<Master>().property("[MP] Slave Slot"));
    slaves.insert(master, 0, 101);
    host->getNetworkManager().startGame();
  }
};

}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  static auto& client = *new Client;
  if (size == 0) return 0;
  const unsigned char door = data[0] % 4;
  ++data;
  --size;
  if (door == 3) {
    // The envelope of the transport, and the packet around it.
    if (const auto packet = detail::NetworkPacket::decode(data, size); packet && !packet->encode().empty())
      Envelope::decode(packet->envelope.data(), packet->envelope.size());
    Envelope::decode(data, size);
    return 0;
  }
  Envelope envelope;
  envelope.kind = door == 2 ? Envelope::Kind::DATA_CACHE : Envelope::Kind::OPERATION;
  envelope.number = door == 0 ? 48 : door == 1 ? 140 : 7;
  envelope.stream = qsf::game::BitStream({data, data + size}, size * 8);
  client.transport->events.push_back({Transport::Event::Kind::MESSAGE, 0, envelope});
  client.host->getNetworkManager().receive();
  return 0;
}
