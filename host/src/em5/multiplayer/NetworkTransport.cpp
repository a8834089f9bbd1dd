#include "em5/multiplayer/NetworkTransport.h"

#include "qsf/log/LogSystem.h"

#include <enet/enet.h>

#include <array>
#include <stdexcept>

namespace em5::multiplayer {

using detail::NetworkPacket;

namespace {

constexpr std::uint8_t MOST_CLIENTS = 3;
/// Those who have called and not greeted yet have a place, too; more are turned away by the library.
constexpr std::size_t MOST_CONNECTIONS = 8;
constexpr std::size_t CHANNELS = 1;
/// What a frame takes of what has come; the rest waits for the next, so that nobody can hold a frame.
constexpr std::size_t EVENTS_OF_A_FRAME = 2'000;
constexpr enet_uint32 PATIENCE_WITH_SILENCE = 5'000; // milliseconds

struct Library {
  Library() {
    if (enet_initialize() != 0) throw std::runtime_error("the network can't be used");
  }
  ~Library() { enet_deinitialize(); }
};

void useLibrary() { static const Library library; }

struct HostDeleter {
  void operator()(ENetHost* host) const { enet_host_destroy(host); }
};
using HostPointer = std::unique_ptr<ENetHost, HostDeleter>;

void limit(ENetHost& host) {
  host.maximumPacketSize = Envelope::MOST_BYTES + 64;
  host.maximumWaitingData = 4 * Envelope::MOST_BYTES;
}

void sendPacket(ENetPeer& peer, const NetworkPacket& packet) {
  const std::vector<std::uint8_t> bytes = packet.encode();
  ENetPacket* made = enet_packet_create(bytes.data(), bytes.size(), ENET_PACKET_FLAG_RELIABLE);
  if (enet_peer_send(&peer, 0, made) != 0) enet_packet_destroy(made);
}

std::optional<NetworkPacket> takePacket(ENetPacket* packet) {
  auto decoded = NetworkPacket::decode(packet->data, packet->dataLength);
  enet_packet_destroy(packet);
  return decoded;
}

ENetAddress resolve(const NetworkAddress& address) {
  ENetAddress resolved{};
  resolved.port = address.port;
  if (enet_address_set_host(&resolved, address.host.c_str()) != 0)
    throw std::runtime_error("there is no machine '" + address.host + "'");
  return resolved;
}

std::string describe(const NetworkAddress& address) { return address.host + ":" + std::to_string(address.port); }

}

struct NetworkServer::Internals {
  HostPointer host;
  Judge judge;
  std::array<ENetPeer*, MOST_CLIENTS + 1> clients{}; ///< by player index; null where nobody is

  /// 0 for a connection that hasn't greeted.
  static std::uint8_t indexOf(const ENetPeer& peer) {
    return static_cast<std::uint8_t>(reinterpret_cast<std::uintptr_t>(peer.data));
  }
  void tellOthers(std::uint8_t about, NetworkPacket::Kind kind) {
    NetworkPacket packet;
    packet.kind = kind;
    packet.player = about;
    for (std::uint8_t i = 1; i <= MOST_CLIENTS; ++i)
      if (clients[i] && i != about) sendPacket(*clients[i], packet);
  }
  void refuse(ENetPeer& peer, const std::string& reason) {
    NetworkPacket packet;
    packet.kind = NetworkPacket::Kind::REFUSE;
    packet.text = reason;
    sendPacket(peer, packet);
    enet_peer_disconnect_later(&peer, 0);
  }
  void greet(ENetPeer& peer, const std::string& greeting, std::vector<Event>& events);
  void drop(ENetPeer& peer, std::vector<Event>& events);
  void handle(ENetPeer& peer, const std::optional<NetworkPacket>& packet, std::vector<Event>& events);
};

void NetworkServer::Internals::greet(ENetPeer& peer, const std::string& greeting, std::vector<Event>& events) {
  std::uint8_t index = 1;
  while (index <= MOST_CLIENTS && clients[index])
    ++index;
  if (index > MOST_CLIENTS) {
    refuse(peer, "the game has its four players");
    return;
  }
  const Greeting answer = judge(greeting);
  if (!answer.welcome) {
    refuse(peer, answer.text);
    return;
  }
  NetworkPacket packet;
  packet.kind = NetworkPacket::Kind::ACCEPT;
  packet.player = index;
  packet.text = answer.text;
  packet.others.push_back(0);
  for (std::uint8_t i = 1; i <= MOST_CLIENTS; ++i)
    if (clients[i]) packet.others.push_back(i);
  sendPacket(peer, packet);
  clients[index] = &peer;
  peer.data = reinterpret_cast<void*>(static_cast<std::uintptr_t>(index));
  tellOthers(index, NetworkPacket::Kind::JOINED);
  events.push_back({Event::Kind::JOINED, index, {}});
}

void NetworkServer::Internals::drop(ENetPeer& peer, std::vector<Event>& events) {
  const std::uint8_t index = indexOf(peer);
  peer.data = nullptr;
  if (index == 0) return;
  clients[index] = nullptr;
  tellOthers(index, NetworkPacket::Kind::LEFT);
  events.push_back({Event::Kind::LEFT, index, {}});
}

void NetworkServer::Internals::handle(ENetPeer& peer, const std::optional<NetworkPacket>& packet,
                                      std::vector<Event>& events) {
  const std::uint8_t index = indexOf(peer);
  if (packet && packet->kind == NetworkPacket::Kind::HELLO && index == 0) {
    greet(peer, packet->text, events);
    return;
  }
  if (packet && packet->kind == NetworkPacket::Kind::MESSAGE && index != 0) {
    if (auto envelope = Envelope::decode(packet->envelope.data(), packet->envelope.size())) {
      events.push_back({Event::Kind::MESSAGE, index, std::move(*envelope)});
      return;
    }
  }
  drop(peer, events); // it doesn't speak our language
  enet_peer_reset(&peer);
}

NetworkServer::NetworkServer(const NetworkAddress& address, Judge judge) : mInternals(std::make_unique<Internals>()) {
  useLibrary();
  const ENetAddress listen = resolve(address);
  mInternals->host.reset(enet_host_create(&listen, MOST_CONNECTIONS, CHANNELS, 0, 0));
  if (!mInternals->host) throw std::runtime_error(describe(address) + " can't be listened at");
  limit(*mInternals->host);
  mInternals->judge = std::move(judge);
}

NetworkServer::~NetworkServer() {
  for (ENetPeer* client : mInternals->clients)
    if (client) enet_peer_disconnect_now(client, 0);
  enet_host_flush(mInternals->host.get());
}

std::uint16_t NetworkServer::getPort() const { return mInternals->host->address.port; }

void NetworkServer::send(std::uint8_t receiver, const Envelope& envelope) {
  if (receiver == 0 || receiver > MOST_CLIENTS || !mInternals->clients[receiver]) return;
  NetworkPacket packet;
  packet.kind = NetworkPacket::Kind::MESSAGE;
  packet.envelope = envelope.encode();
  sendPacket(*mInternals->clients[receiver], packet);
}

std::vector<Transport::Event> NetworkServer::receive() {
  std::vector<Event> events;
  ENetEvent event;
  for (std::size_t i = 0; i < EVENTS_OF_A_FRAME && enet_host_service(mInternals->host.get(), &event, 0) > 0; ++i) {
    if (event.type == ENET_EVENT_TYPE_CONNECT) {
      event.peer->data = nullptr;
      enet_peer_timeout(event.peer, 0, PATIENCE_WITH_SILENCE, PATIENCE_WITH_SILENCE);
    } else if (event.type == ENET_EVENT_TYPE_DISCONNECT) {
      mInternals->drop(*event.peer, events);
    } else if (event.type == ENET_EVENT_TYPE_RECEIVE) {
      mInternals->handle(*event.peer, takePacket(event.packet), events);
    }
  }
  std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) { return a.player < b.player; });
  return events;
}

void NetworkServer::flush() { enet_host_flush(mInternals->host.get()); }

struct NetworkClient::Internals {
  HostPointer host;
  ENetPeer* server = nullptr; ///< null once the host has gone
  std::uint8_t index = 0;
  std::string answer;
  std::vector<std::uint8_t> others;

  void connect(const NetworkAddress& address, const std::string& greeting, std::chrono::milliseconds patience);
  void handle(const std::optional<NetworkPacket>& packet, std::vector<Event>& events);
  void drop(std::vector<Event>& events);
};

void NetworkClient::Internals::connect(const NetworkAddress& address, const std::string& greeting,
                                       std::chrono::milliseconds patience) {
  const ENetAddress called = resolve(address);
  host.reset(enet_host_create(nullptr, 1, CHANNELS, 0, 0));
  if (!host) throw std::runtime_error("the network can't be used");
  limit(*host);
  server = enet_host_connect(host.get(), &called, CHANNELS, 0);
  if (!server) throw std::runtime_error(describe(address) + " can't be called");
  const auto end = std::chrono::steady_clock::now() + patience;
  while (std::chrono::steady_clock::now() < end) {
    ENetEvent event;
    if (enet_host_service(host.get(), &event, 20) <= 0) continue;
    if (event.type == ENET_EVENT_TYPE_CONNECT) {
      enet_peer_timeout(server, 0, PATIENCE_WITH_SILENCE, PATIENCE_WITH_SILENCE);
      NetworkPacket hello;
      hello.text = greeting;
      sendPacket(*server, hello);
    } else if (event.type == ENET_EVENT_TYPE_DISCONNECT) {
      break;
    } else if (event.type == ENET_EVENT_TYPE_RECEIVE) {
      const auto packet = takePacket(event.packet);
      if (packet && packet->kind == NetworkPacket::Kind::REFUSE)
        throw std::runtime_error("the host refuses: " + packet->text);
      if (!packet || packet->kind != NetworkPacket::Kind::ACCEPT || packet->player == 0) break;
      index = packet->player;
      answer = packet->text;
      others = packet->others;
      return;
    }
  }
  throw std::runtime_error("no game answers at " + describe(address));
}

void NetworkClient::Internals::drop(std::vector<Event>& events) {
  if (!server) return;
  server = nullptr;
  events.push_back({Event::Kind::LEFT, 0, {}});
}

void NetworkClient::Internals::handle(const std::optional<NetworkPacket>& packet, std::vector<Event>& events) {
  using Kind = NetworkPacket::Kind;
  if (packet && packet->kind == Kind::MESSAGE) {
    if (auto envelope = Envelope::decode(packet->envelope.data(), packet->envelope.size())) {
      events.push_back({Event::Kind::MESSAGE, 0, std::move(*envelope)});
      return;
    }
  }
  if (packet && (packet->kind == Kind::JOINED || packet->kind == Kind::LEFT) && packet->player > 0 &&
      packet->player <= MOST_CLIENTS && packet->player != index) {
    events.push_back({packet->kind == Kind::JOINED ? Event::Kind::JOINED : Event::Kind::LEFT, packet->player, {}});
    return;
  }
  if (server) enet_peer_reset(server);
  drop(events);
}

NetworkClient::NetworkClient(const NetworkAddress& address, const std::string& greeting,
                             std::chrono::milliseconds patience)
    : mInternals(std::make_unique<Internals>()) {
  useLibrary();
  mInternals->connect(address, greeting, patience);
}

NetworkClient::~NetworkClient() {
  if (mInternals->server) enet_peer_disconnect_now(mInternals->server, 0);
  enet_host_flush(mInternals->host.get());
}

std::uint8_t NetworkClient::getIndex() const { return mInternals->index; }
const std::string& NetworkClient::getAnswer() const { return mInternals->answer; }
std::vector<std::uint8_t> NetworkClient::getOthers() const { return mInternals->others; }

void NetworkClient::send(std::uint8_t receiver, const Envelope& envelope) {
  if (receiver != 0 || !mInternals->server) return;
  NetworkPacket packet;
  packet.kind = NetworkPacket::Kind::MESSAGE;
  packet.envelope = envelope.encode();
  sendPacket(*mInternals->server, packet);
}

std::vector<Transport::Event> NetworkClient::receive() {
  std::vector<Event> events;
  ENetEvent event;
  for (std::size_t i = 0; i < EVENTS_OF_A_FRAME && enet_host_service(mInternals->host.get(), &event, 0) > 0; ++i) {
    if (event.type == ENET_EVENT_TYPE_DISCONNECT)
      mInternals->drop(events);
    else if (event.type == ENET_EVENT_TYPE_RECEIVE)
      mInternals->handle(takePacket(event.packet), events);
  }
  return events;
}

void NetworkClient::flush() { enet_host_flush(mInternals->host.get()); }

}
