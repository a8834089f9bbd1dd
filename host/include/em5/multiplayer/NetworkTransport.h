#pragma once
#include "em5/multiplayer/Transport.h"

#include <chrono>
#include <functional>
#include <string>

namespace em5::multiplayer {

/// Where a machine listens, or which it calls. A port of 0 lets the system choose one.
struct QSF_API NetworkAddress {
  std::string host = "127.0.0.1";
  std::uint16_t port = 0;
  /// `ADDRESS:PORT`, `ADDRESS` or `PORT`. Throws std::invalid_argument with the reason.
  static NetworkAddress parse(const std::string& text);
};

/// What two machines say to each other before they play, each in its own program's words.
struct QSF_API Greeting {
  bool welcome = true;
  std::string text; ///< the host's answer; the reason of a refusal
};

/// The host's end of a session over a real network. A machine that calls greets first; whoever may stay gets the lowest
/// index that is free, from 1 to 3, and all are told of each other. Whatever comes in is a stranger's: what is no
/// message of this protocol ends its connection, and nobody holds a frame for longer than the messages that a frame
/// takes.
class QSF_API NetworkServer : public Transport {
public:
  using Judge = std::function<Greeting(const std::string& greeting)>;
  /// Throws std::runtime_error if the address can't be listened at.
  NetworkServer(const NetworkAddress& address, Judge judge);
  ~NetworkServer() override;

  void send(std::uint8_t receiver, const Envelope& envelope) override;
  std::vector<Event> receive() override;
  void flush() override;
  /// Where it listens.
  std::uint16_t getPort() const;

private:
  struct Internals;
  std::unique_ptr<Internals> mInternals;
};

/// A client's end.
class QSF_API NetworkClient : public Transport {
public:
  /// Calls the host, greets and waits for its answer. Throws std::runtime_error with the reason if nobody answers in
  /// time, or the host refuses.
  NetworkClient(const NetworkAddress& address, const std::string& greeting, std::chrono::milliseconds patience);
  ~NetworkClient() override;

  void send(std::uint8_t receiver, const Envelope& envelope) override;
  std::vector<Event> receive() override;
  void flush() override;

  /// This machine's player index.
  std::uint8_t getIndex() const;
  /// What the host answered.
  const std::string& getAnswer() const;
  /// Who else is there, the host among them.
  std::vector<std::uint8_t> getOthers() const;

private:
  struct Internals;
  std::unique_ptr<Internals> mInternals;
};

namespace detail {

/// One packet of the protocol under the messages. Public for tests and fuzzers.
struct QSF_API NetworkPacket {
  enum class Kind : std::uint8_t { HELLO = 1, ACCEPT = 2, REFUSE = 3, JOINED = 4, LEFT = 5, MESSAGE = 6 };
  Kind kind = Kind::HELLO;
  std::uint8_t player = 0;            ///< of ACCEPT, JOINED, LEFT
  std::vector<std::uint8_t> others;   ///< of ACCEPT
  std::string text;                   ///< of HELLO, ACCEPT, REFUSE
  std::vector<std::uint8_t> envelope; ///< of MESSAGE

  std::vector<std::uint8_t> encode() const;
  /// Nothing for bytes that are none.
  static std::optional<NetworkPacket> decode(const std::uint8_t* bytes, std::size_t size);
};

}

}
